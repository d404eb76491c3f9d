// whenAnswered: hands a D-Bus call's answer (its reply or its error) to `handle` on the main
// thread, unless `context` is destroyed first. No call blocks the main thread.
#pragma once

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <functional>

namespace tindra {

inline void whenAnswered(const QDBusPendingCall& call, QObject* context,
                         std::function<void(const QDBusMessage& answer)> handle) {
  auto* watcher = new QDBusPendingCallWatcher(call, context);
  QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context,
                   [handle = std::move(handle)](QDBusPendingCallWatcher* finished) {
                     finished->deleteLater();
                     handle(finished->reply());
                   });
}

}  // namespace tindra
