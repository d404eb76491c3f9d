// whenAnswered: hands a D-Bus call's answer (its reply or its error) to `handle` on the main
// thread, unless `context` is destroyed first. No call blocks the main thread.
// argument, variantArgument: an answer's or a signal's arguments, typed as dbus_value.h takes
// them.
#pragma once

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <functional>

#include "base/dbus/dbus_value.h"

namespace tindra {

void whenAnswered(const QDBusPendingCall& call, QObject* context,
                  std::function<void(const QDBusMessage& answer)> handle);

namespace dbus {

// Argument `index` of `message` as a T; none when missing or of another type.
template <class T>
std::optional<T> argument(const QDBusMessage& message, int index = 0) {
  return typed<T>(message.arguments().value(index));
}

// What a variant argument holds, as Properties.Get answers; invalid when there is none.
QVariant variantArgument(const QDBusMessage& message, int index = 0);

}  // namespace dbus

}  // namespace tindra
