"""BlueZ with what accessories add, for python3-dbusmock (`--template`): everything of dbusmock's
bluez5 template, plus two mock methods on org.bluez.Mock that stand for a device describing
itself: DescribeDevice(adapter, address, class, icon, modalias) and SetBattery(adapter, address,
percentage), which adds org.bluez.Battery1 the way BlueZ does (InterfacesAdded) or changes it
(PropertiesChanged). RemoveBattery(adapter, address) takes it away again (InterfacesRemoved).
"""

import dbus
from dbusmock import mockobject
from dbusmock.templates.bluez5 import *  # noqa: F401,F403 (the template's objects and methods)
from dbusmock.templates.bluez5 import BLUEZ_MOCK_IFACE, DEVICE_IFACE, OBJECT_MANAGER_IFACE

BATTERY_IFACE = "org.bluez.Battery1"


def device_at(adapter, address):
    return mockobject.objects[f"/org/bluez/{adapter}/dev_" + address.replace(":", "_").upper()]


@dbus.service.method(BLUEZ_MOCK_IFACE, in_signature="ssuss", out_signature="")
def DescribeDevice(_self, adapter, address, device_class, icon, modalias):
    device = device_at(adapter, address)
    changed = {"Class": dbus.UInt32(device_class), "Icon": dbus.String(icon),
               "Modalias": dbus.String(modalias)}
    device.props[DEVICE_IFACE].update(changed)
    device.EmitSignal(dbus.PROPERTIES_IFACE, "PropertiesChanged", "sa{sv}as",
                      [DEVICE_IFACE, changed, []])


@dbus.service.method(BLUEZ_MOCK_IFACE, in_signature="ssy", out_signature="")
def SetBattery(_self, adapter, address, percentage):
    device = device_at(adapter, address)
    properties = {"Percentage": dbus.Byte(percentage)}
    if BATTERY_IFACE in device.props:
        device.props[BATTERY_IFACE].update(properties)
        device.EmitSignal(dbus.PROPERTIES_IFACE, "PropertiesChanged", "sa{sv}as",
                          [BATTERY_IFACE, properties, []])
        return
    device.props[BATTERY_IFACE] = properties
    mockobject.objects["/"].EmitSignal(OBJECT_MANAGER_IFACE, "InterfacesAdded", "oa{sa{sv}}",
                                       [dbus.ObjectPath(device.__dbus_object_path__),
                                        {BATTERY_IFACE: properties}])


@dbus.service.method(BLUEZ_MOCK_IFACE, in_signature="ss", out_signature="")
def RemoveBattery(_self, adapter, address):
    device = device_at(adapter, address)
    device.props.pop(BATTERY_IFACE, None)
    mockobject.objects["/"].EmitSignal(OBJECT_MANAGER_IFACE, "InterfacesRemoved", "oas",
                                       [dbus.ObjectPath(device.__dbus_object_path__),
                                        [BATTERY_IFACE]])
