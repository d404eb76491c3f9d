"""GeoClue 2 (org.freedesktop.GeoClue2) for python3-dbusmock (`--template`): a manager that hands
out one client, and a client that, once started with a desktop id, reports the position set
through the mock method SetLocation(latitude, longitude, accuracy) as a new Location object and
LocationUpdated. A position set before the client has started is reported when it starts, as
GeoClue reports the fix it has to a client that starts after it found one. SetRefuse(true) makes
Start fail the way GeoClue does when the user's agent denies the program.
"""

import dbus
from dbusmock import MOCK_IFACE

BUS_NAME = "org.freedesktop.GeoClue2"
MAIN_OBJ = "/org/freedesktop/GeoClue2/Manager"
MAIN_IFACE = "org.freedesktop.GeoClue2.Manager"
SYSTEM_BUS = True

CLIENT_PATH = "/org/freedesktop/GeoClue2/Client/1"
CLIENT_IFACE = "org.freedesktop.GeoClue2.Client"
LOCATION_IFACE = "org.freedesktop.GeoClue2.Location"

state = {"locations": 0, "refuse": False, "started": False, "pending": None}


def load(mock, _parameters):
    mock.AddProperties(MAIN_IFACE, {"InUse": dbus.Boolean(False),
                                    "AvailableAccuracyLevel": dbus.UInt32(8)})
    mock.AddMethod(MAIN_IFACE, "GetClient", "", "o",
                   "ret = self.GetClientObject()")


@dbus.service.method(MOCK_IFACE, in_signature="", out_signature="o")
def GetClientObject(self):
    if CLIENT_PATH not in dbusmock_objects():
        self.AddObject(CLIENT_PATH, CLIENT_IFACE, {
            "Location": dbus.ObjectPath("/"),
            "DistanceThreshold": dbus.UInt32(0),
            "TimeThreshold": dbus.UInt32(0),
            "DesktopId": dbus.String(""),
            "RequestedAccuracyLevel": dbus.UInt32(0),
            "Active": dbus.Boolean(False),
        }, [
            ("Start", "", "", "self.StartClient()"),
            ("Stop", "", "", "self.SetProperty('/org/freedesktop/GeoClue2/Client/1', "
                             "'org.freedesktop.GeoClue2.Client', 'Active', False)"),
        ])
    return dbus.ObjectPath(CLIENT_PATH)


def dbusmock_objects():
    from dbusmock.mockobject import objects
    return objects


@dbus.service.method(MOCK_IFACE, in_signature="", out_signature="")
def StartClient(self):
    client = dbusmock_objects()[CLIENT_PATH]
    desktop = client.Get(CLIENT_IFACE, "DesktopId")
    if state["refuse"] or not desktop:
        raise dbus.exceptions.DBusException("'tindra' disallowed, no agent for UID 0",
                                            name="org.freedesktop.DBus.Error.AccessDenied")
    client.Set(CLIENT_IFACE, "Active", dbus.Boolean(True))
    state["started"] = True
    if state["pending"]:
        self.SetLocation(*state["pending"])
        state["pending"] = None


@dbus.service.method(MOCK_IFACE, in_signature="b", out_signature="")
def SetRefuse(_self, refuse):
    state["refuse"] = bool(refuse)


@dbus.service.method(MOCK_IFACE, in_signature="ddd", out_signature="")
def SetLocation(self, latitude, longitude, accuracy):
    if not state["started"]:
        state["pending"] = (latitude, longitude, accuracy)
        return
    client = dbusmock_objects()[CLIENT_PATH]
    old = client.Get(CLIENT_IFACE, "Location")
    state["locations"] += 1
    path = "/org/freedesktop/GeoClue2/Location/%d" % state["locations"]
    self.AddObject(path, LOCATION_IFACE, {
        "Latitude": dbus.Double(latitude),
        "Longitude": dbus.Double(longitude),
        "Accuracy": dbus.Double(accuracy),
        "Altitude": dbus.Double(-1.7976931348623157e308),
        "Speed": dbus.Double(-1),
        "Heading": dbus.Double(-1),
        "Description": dbus.String(""),
        "Timestamp": dbus.Struct((dbus.UInt64(0), dbus.UInt64(0)), signature="tt"),
    }, [])
    client.Set(CLIENT_IFACE, "Location", dbus.ObjectPath(path))
    client.EmitSignal(CLIENT_IFACE, "LocationUpdated", "oo", [old, dbus.ObjectPath(path)])
