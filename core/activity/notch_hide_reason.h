// NotchHideReason: why the notch is stepping aside on a display.
#pragma once

#include <string_view>

namespace tindra {

enum class NotchHideReason { fullScreen, missionControl, game };

// The case name, for logs and diagnostics ("missionControl").
std::string_view name(NotchHideReason reason);

}  // namespace tindra
