// BatteryViewModel: what the battery views show: the percentage and how the battery is powered.
// `available` is false when there is no battery or no reading, and then nothing is drawn.
#pragma once

#include <QObject>
#include <QString>
#include <optional>

#include "power/battery_notice.h"
#include "power/battery_status.h"

namespace tindra {

class BatteryViewModel : public QObject {
  Q_OBJECT
  Q_PROPERTY(bool available READ available NOTIFY changed)
  Q_PROPERTY(int percent READ percent NOTIFY changed)
  Q_PROPERTY(bool charging READ charging NOTIFY changed)
  Q_PROPERTY(bool pluggedIn READ pluggedIn NOTIFY changed)
  Q_PROPERTY(bool charged READ charged NOTIFY changed)
  // Minutes to empty while discharging or to full while charging; -1 while unknown.
  Q_PROPERTY(int minutesLeft READ minutesLeft NOTIFY changed)
  Q_PROPERTY(bool lowPowerMode READ lowPowerMode NOTIFY changed)
  // The latest notice, for the compact view: "pluggedIn", "unplugged" or "low"; and the
  // percentage it was given at.
  Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged)
  Q_PROPERTY(int noticePercent READ noticePercent NOTIFY noticeChanged)

 public:
  using QObject::QObject;

  bool available() const { return reading_.has_value(); }
  int percent() const { return reading_ ? reading_->percent : 0; }
  bool charging() const { return reading_ && reading_->isCharging; }
  bool pluggedIn() const { return reading_ && reading_->isPluggedIn; }
  bool charged() const { return reading_ && reading_->isCharged; }
  int minutesLeft() const;
  bool lowPowerMode() const { return reading_ && reading_->isLowPowerMode; }
  QString notice() const;
  int noticePercent() const { return notice_ ? notice_->status.percent : 0; }
  void setNotice(const BatteryNotice& notice);

  // Emits `changed` only when the reading really differs.
  void setReading(std::optional<BatteryStatus> reading);

 signals:
  void changed();
  void noticeChanged();

 private:
  std::optional<BatteryStatus> reading_;
  std::optional<BatteryNotice> notice_;
};

}  // namespace tindra
