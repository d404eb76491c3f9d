"""logind as far as the display's brightness goes, for python3-dbusmock (`--template`): the
caller's own session ("auto") with SetBrightness, which writes the value into the backlight
folder given as the parameter "folder" (a stand-in for /sys/class/backlight) as the kernel
would. The mock method SetRefuse(true) makes it answer AccessDenied instead, as logind does for
a session that is not on a seat.
"""

import os

import dbus
from dbusmock import MOCK_IFACE

BUS_NAME = "org.freedesktop.login1"
MAIN_OBJ = "/org/freedesktop/login1"
MAIN_IFACE = "org.freedesktop.login1.Manager"
SYSTEM_BUS = True

state = {"folder": "", "refuse": False}


def set_brightness(_session, subsystem, name, value):
    if state["refuse"]:
        raise dbus.exceptions.DBusException(
            "Not allowed", name="org.freedesktop.DBus.Error.AccessDenied")
    for attribute in ("brightness", "actual_brightness"):
        with open(os.path.join(state["folder"], name, attribute), "w", encoding="ascii") as f:
            f.write(f"{int(value)}\n")


def load(mock, parameters):
    state["folder"] = parameters.get("folder", "")
    mock.AddObject("/org/freedesktop/login1/session/auto", "org.freedesktop.login1.Session", {},
                   [("SetBrightness", "ssu", "", set_brightness)])


@dbus.service.method(MOCK_IFACE, in_signature="b", out_signature="")
def SetRefuse(_self, refuse):
    state["refuse"] = bool(refuse)
