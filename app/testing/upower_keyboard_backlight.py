"""UPower's keyboard backlight (org.freedesktop.UPower.KbdBacklight) for python3-dbusmock
(`--template`), as a laptop with a lit keyboard has it: levels 0 to the parameter "max"
(default 3), starting at "level" (default 1). The mock methods stand for the hardware:
SetHardwareBrightness is the firmware's own hotkey, SetIgnoreWrites(true) makes SetBrightness
answer while the light stays where it is, as some keyboards do.
"""

import dbus
from dbusmock import MOCK_IFACE

BUS_NAME = "org.freedesktop.UPower"
MAIN_OBJ = "/org/freedesktop/UPower/KbdBacklight"
MAIN_IFACE = "org.freedesktop.UPower.KbdBacklight"
SYSTEM_BUS = True

state = {"level": 1, "max": 3, "ignore_writes": False}


def load(_mock, parameters):
    state["level"] = int(parameters.get("level", 1))
    state["max"] = int(parameters.get("max", 3))


def change(mock, value):
    state["level"] = int(value)
    mock.EmitSignal(MAIN_IFACE, "BrightnessChanged", "i", [dbus.Int32(state["level"])])


@dbus.service.method(MAIN_IFACE, in_signature="", out_signature="i")
def GetBrightness(_self):
    return dbus.Int32(state["level"])


@dbus.service.method(MAIN_IFACE, in_signature="", out_signature="i")
def GetMaxBrightness(_self):
    return dbus.Int32(state["max"])


@dbus.service.method(MAIN_IFACE, in_signature="i", out_signature="")
def SetBrightness(self, value):
    if not state["ignore_writes"]:
        change(self, value)


@dbus.service.method(MOCK_IFACE, in_signature="i", out_signature="")
def SetHardwareBrightness(self, value):
    change(self, value)


@dbus.service.method(MOCK_IFACE, in_signature="b", out_signature="")
def SetIgnoreWrites(_self, ignore):
    state["ignore_writes"] = bool(ignore)
