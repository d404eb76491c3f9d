// The D-Bus names more than one Linux backend speaks to.
#pragma once

#include <QString>

namespace tindra::dbus {

inline const QString properties = QStringLiteral("org.freedesktop.DBus.Properties");
inline const QString upowerService = QStringLiteral("org.freedesktop.UPower");
inline const QString upowerPath = QStringLiteral("/org/freedesktop/UPower");
inline const QString upowerDevice = QStringLiteral("org.freedesktop.UPower.Device");

}  // namespace tindra::dbus
