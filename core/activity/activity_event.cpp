#include "activity/activity_event.h"

#include <cmath>

namespace tindra {

ActivityEvent ActivityEvent::scaled(NoticeDurationScale scaleSetting) const {
  if (case_ != Case::began || !isNotice(kind_) || !duration_) return *this;
  if (!std::isfinite(*duration_) || *duration_ <= 0) return *this;
  return began(kind_, scale(scaleSetting, *duration_));
}

}  // namespace tindra
