"""A service for the D-Bus follower's test, for python3-dbusmock (`--template`): one object,
/org/example/Followed, whose interface org.example.Followed has the property Level (the parameter
"level", default 0), so that each start of the service can be told apart by what it reports.
The mock's own UpdateProperties and EmitSignal change it and invalidate it.
"""

import dbus

BUS_NAME = "org.example.Followed"
MAIN_OBJ = "/org/example/Followed"
MAIN_IFACE = "org.example.Followed"
SYSTEM_BUS = False


def load(mock, parameters):
    mock.AddProperties(MAIN_IFACE, {"Level": dbus.Int32(parameters.get("level", 0))})
