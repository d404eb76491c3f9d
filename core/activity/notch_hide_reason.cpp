#include "activity/notch_hide_reason.h"

namespace tindra {

std::string_view name(NotchHideReason reason) {
  switch (reason) {
    case NotchHideReason::fullScreen:
      return "fullScreen";
    case NotchHideReason::missionControl:
      return "missionControl";
    case NotchHideReason::game:
      return "game";
  }
  return "fullScreen";
}

}  // namespace tindra
