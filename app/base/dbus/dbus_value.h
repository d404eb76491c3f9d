// typed, take: values that came from another process over D-Bus, taken only when they are of the
// type asked for. A property of the wrong type counts as missing instead of being converted into
// a guess; an integer is taken from any of D-Bus's integer types as long as it fits.
#pragma once

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QVariant>
#include <QVariantMap>
#include <optional>
#include <type_traits>
#include <utility>

namespace tindra::dbus {

// Whether `value` holds one of D-Bus's integer types (y, n, q, i, u, x, t).
bool isInteger(const QVariant& value);

// `value` as a T: exactly that type, any D-Bus integer that fits an integer T, or a container
// (a{sv}, ao, ...) whose signature is T's. None otherwise.
template <class T>
std::optional<T> typed(const QVariant& value) {
  if (value.metaType() == QMetaType::fromType<T>()) return value.value<T>();
  if constexpr (std::is_integral_v<T> && !std::is_same_v<T, bool>) {
    if (!isInteger(value)) return std::nullopt;
    if (value.typeId() == QMetaType::ULongLong) {
      const qulonglong number = value.toULongLong();
      if (std::in_range<T>(number)) return static_cast<T>(number);
    } else if (const qlonglong number = value.toLongLong(); std::in_range<T>(number)) {
      return static_cast<T>(number);
    }
  } else if (value.metaType() == QMetaType::fromType<QDBusArgument>()) {
    // qdbus_cast of another signature reads garbage and warns; ask first.
    const auto argument = value.value<QDBusArgument>();
    const char* signature = QDBusMetaType::typeToSignature(QMetaType::fromType<T>());
    if (signature && argument.currentSignature() == QLatin1String(signature)) {
      return qdbus_cast<T>(argument);
    }
  }
  return std::nullopt;
}

template <class T>
std::optional<T> typed(const QVariantMap& map, const QString& key) {
  const auto found = map.constFind(key);
  return found == map.constEnd() ? std::nullopt : typed<T>(*found);
}

// Copies map[key] into `field` when it is there and of the right type; otherwise `field` keeps
// its value rather than being reset by a service's nonsense. Whether it was copied.
template <class T>
bool take(const QVariantMap& map, const QString& key, T& field) {
  std::optional<T> value = typed<T>(map, key);
  if (value) field = std::move(*value);
  return value.has_value();
}

}  // namespace tindra::dbus
