// BatteryBackend: where readings of the internal battery come from, reported when they change.
// BatteryBackend::Null is the do-nothing backend of a session without a battery service.
#pragma once

#include <memory>
#include <optional>

#include "base/backend.h"
#include "base/shared_backends.h"
#include "power/battery_status.h"

namespace tindra {

class BatteryBackend : public Backend {
  Q_OBJECT

 public:
  using Backend::Backend;
  using Null = NullBackend<BatteryBackend>;

  // This platform's battery backend: the real one, or the do-nothing one where the service
  // cannot be there (made in the platform's folder).
  static std::unique_ptr<BatteryBackend> forPlatform(SharedBackends& shared);

  // The latest reading; nothing when there is no battery or no service to ask.
  const std::optional<BatteryStatus>& reading() const { return reading_; }

 signals:
  void readingChanged();

 protected:
  void publish(const std::optional<BatteryStatus>& reading) {
    if (assignIfChanged(reading_, reading)) emit readingChanged();
  }

 private:
  std::optional<BatteryStatus> reading_;
};

}  // namespace tindra
