// The power backends on Linux: UPower's display device for the battery, BlueZ with UPower's
// peripherals for the accessories, both on the system bus.
#include "base/linux/system_bus.h"
#include "power/linux/bluez_accessory_backend.h"
#include "power/linux/upower_battery_backend.h"

namespace tindra {

std::unique_ptr<BatteryBackend> BatteryBackend::forPlatform(SharedBackends&) {
  return onSystemBus<BatteryBackend::Null>(
      Sentence::in("Backends",
                   QT_TRANSLATE_NOOP("Backends", "no system bus (%1): no battery is shown")),
      [](const QDBusConnection& bus) { return std::make_unique<UPowerBatteryBackend>(bus); });
}

std::unique_ptr<AccessoryBackend> AccessoryBackend::forPlatform(SharedBackends&) {
  return onSystemBus<AccessoryBackend::Null>(
      Sentence::in("Backends",
                   QT_TRANSLATE_NOOP("Backends", "no system bus (%1): no accessories are shown")),
      [](const QDBusConnection& bus) { return std::make_unique<BlueZAccessoryBackend>(bus); });
}

}  // namespace tindra
