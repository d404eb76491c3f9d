// PlaybackTimeFormat: the position and remaining time as the progress bar writes them
// ("1:05", "1:02:05", "-0:09"), independent of the user's locale.
#pragma once

#include <string>

namespace tindra::PlaybackTimeFormat {

// Whole seconds rounded down: "m:ss" below an hour, "h:mm:ss" from one; negative and
// non-finite input reads as 0.
std::string elapsed(double seconds);

// "-" and the seconds left, rounded up; "-0:00" when past the end or not finite.
std::string remaining(double elapsed, double duration);

}  // namespace tindra::PlaybackTimeFormat
