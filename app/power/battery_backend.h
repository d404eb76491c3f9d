// BatteryBackend: where readings of the internal battery come from. A backend reports each
// change when it happens (never by polling) and says whether its service answers.
#pragma once

#include <QObject>
#include <optional>

#include "base/service_check.h"
#include "power/battery_status.h"

namespace tindra {

class BatteryBackend : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  // Begins following the battery. Readings may arrive before or after this returns.
  virtual void start() = 0;
  // The latest reading; nothing when there is no battery or no service to ask.
  virtual std::optional<BatteryStatus> reading() const = 0;
  virtual ServiceCheck check() const = 0;

 signals:
  void readingChanged();
  void checkChanged();
};

}  // namespace tindra
