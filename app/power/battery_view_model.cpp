#include "power/battery_view_model.h"

#include "base/qt_text.h"

namespace tindra {

int BatteryViewModel::minutesLeft() const {
  if (!reading_) return -1;
  return reading_->isCharging ? reading_->minutesToFull.value_or(-1)
                              : reading_->minutesToEmpty.value_or(-1);
}

void BatteryViewModel::setReading(std::optional<BatteryStatus> reading) {
  if (reading == reading_) return;
  reading_ = reading;
  emit changed();
}

QString BatteryViewModel::notice() const {
  return notice_ ? toQString(rawValue(notice_->kind)) : QString();
}

void BatteryViewModel::setNotice(const BatteryNotice& notice) {
  notice_ = notice;
  emit noticeChanged();
}

}  // namespace tindra
