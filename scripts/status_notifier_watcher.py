"""A StatusNotifierWatcher with a host registered, as a desktop with a tray has on its session
bus; items register with it and nothing else happens. Used with `python3 -m dbusmock --template`.
"""

import dbus

BUS_NAME = "org.kde.StatusNotifierWatcher"
MAIN_OBJ = "/StatusNotifierWatcher"
MAIN_IFACE = "org.kde.StatusNotifierWatcher"
SYSTEM_BUS = False


def load(mock, parameters):
    mock.AddProperties(
        MAIN_IFACE,
        {
            "IsStatusNotifierHostRegistered": dbus.Boolean(True),
            "ProtocolVersion": dbus.Int32(0),
            "RegisteredStatusNotifierItems": dbus.Array([], signature="s"),
        },
    )
    mock.AddMethods(
        MAIN_IFACE,
        [
            ("RegisterStatusNotifierItem", "s", "",
             "items = list(self.Get('org.kde.StatusNotifierWatcher', 'RegisteredStatusNotifierItems')) + [args[0]]; "
             "self.Set('org.kde.StatusNotifierWatcher', 'RegisteredStatusNotifierItems', "
             "dbus.Array(items, signature='s')); "
             "self.EmitSignal('org.kde.StatusNotifierWatcher', 'StatusNotifierItemRegistered', 's', [args[0]])"),
            ("RegisterStatusNotifierHost", "s", "", ""),
        ],
    )
