// The shapes of org.freedesktop.DBus.ObjectManager's answers (GetManagedObjects,
// InterfacesAdded), for the backends that follow a service's objects through it; register them
// with qDBusRegisterMetaType before the first call.
#pragma once

#include <QDBusObjectPath>
#include <QMap>
#include <QMetaType>
#include <QString>
#include <QVariantMap>

namespace tindra::dbus {

inline const QString objectManager = QStringLiteral("org.freedesktop.DBus.ObjectManager");

}  // namespace tindra::dbus

using InterfaceMap = QMap<QString, QVariantMap>;
using ManagedObjects = QMap<QDBusObjectPath, InterfaceMap>;
Q_DECLARE_METATYPE(InterfaceMap)
Q_DECLARE_METATYPE(ManagedObjects)
