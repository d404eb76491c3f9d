"""UPower with Bluetooth peripherals, for python3-dbusmock (`--template`): everything of
dbusmock's upower template, plus AddPeripheral(name, model, percentage, address, type), which
adds a device the way UPower does for a headset or speaker whose battery BlueZ reports to it:
with the Bluetooth address as its serial number, then DeviceAdded.
"""

import dbus
from dbusmock import MOCK_IFACE
from dbusmock.templates.upower import *  # noqa: F401,F403 (the template's objects and methods)
from dbusmock.templates.upower import DEVICE_IFACE, MAIN_IFACE


@dbus.service.method(MOCK_IFACE, in_signature="ssdsu", out_signature="s")
def AddPeripheral(self, device_name, model, percentage, address, kind):
    path = "/org/freedesktop/UPower/devices/" + device_name
    self.AddObject(path, DEVICE_IFACE, {
        "NativePath": dbus.String("/org/bluez/hci0/dev_" + address.replace(":", "_")),
        "Serial": dbus.String(address),
        "Model": dbus.String(model),
        "Percentage": dbus.Double(percentage),
        "PowerSupply": dbus.Boolean(False),
        "IsPresent": dbus.Boolean(True),
        "Type": dbus.UInt32(kind),
        "State": dbus.UInt32(2),
    }, [])
    self.EmitSignal(MAIN_IFACE, "DeviceAdded", "o", [dbus.ObjectPath(path)])
    return path
