#include "base/dbus/dbus_reply.h"

#include <QDBusPendingCallWatcher>
#include <QDBusVariant>

namespace tindra {

void whenAnswered(const QDBusPendingCall& call, QObject* context,
                  std::function<void(const QDBusMessage& answer)> handle) {
  auto* watcher = new QDBusPendingCallWatcher(call, context);
  QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context,
                   [handle = std::move(handle)](QDBusPendingCallWatcher* finished) {
                     finished->deleteLater();
                     handle(finished->reply());
                   });
}

namespace dbus {

QVariant variantArgument(const QDBusMessage& message, int index) {
  return argument<QDBusVariant>(message, index).value_or(QDBusVariant()).variant();
}

}  // namespace dbus

}  // namespace tindra
