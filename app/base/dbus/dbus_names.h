// The D-Bus names more than one Linux backend speaks to.
#pragma once

#include <QString>

namespace tindra::dbus {

inline const QString busService = QStringLiteral("org.freedesktop.DBus");
inline const QString busPath = QStringLiteral("/org/freedesktop/DBus");
inline const QString properties = QStringLiteral("org.freedesktop.DBus.Properties");
inline const QString upowerService = QStringLiteral("org.freedesktop.UPower");
inline const QString upowerPath = QStringLiteral("/org/freedesktop/UPower");
inline const QString upowerDevice = QStringLiteral("org.freedesktop.UPower.Device");
inline const QString notificationsService = QStringLiteral("org.freedesktop.Notifications");
inline const QString notificationsPath = QStringLiteral("/org/freedesktop/Notifications");
inline const QString notificationsInterface = notificationsService;

}  // namespace tindra::dbus
