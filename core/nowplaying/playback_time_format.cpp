#include "nowplaying/playback_time_format.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace tindra::PlaybackTimeFormat {
namespace {

void appendNumber(std::string& out, std::int64_t value) {
  char digits[24];
  const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
  out.append(digits, end);
}

void appendTwoDigits(std::string& out, std::int64_t value) {
  out.push_back(static_cast<char>('0' + value / 10));
  out.push_back(static_cast<char>('0' + value % 10));
}

// Whole seconds, clamped so the conversion to an integer is always defined.
std::int64_t wholeSeconds(double seconds) {
  if (!std::isfinite(seconds) || seconds <= 0) return 0;
  constexpr double limit = 9.0e15;
  return static_cast<std::int64_t>(std::floor(std::min(seconds, limit)));
}

}  // namespace

std::string elapsed(double seconds) {
  const std::int64_t s = wholeSeconds(seconds);
  std::string out;
  if (s >= 3600) {
    appendNumber(out, s / 3600);
    out.push_back(':');
    appendTwoDigits(out, s / 60 % 60);
  } else {
    appendNumber(out, s / 60);
  }
  out.push_back(':');
  appendTwoDigits(out, s % 60);
  return out;
}

std::string remaining(double elapsedSeconds, double duration) {
  double amount = 0;
  if (std::isfinite(elapsedSeconds) && std::isfinite(duration)) {
    amount = std::ceil(std::max(0.0, duration - elapsedSeconds));
  }
  return "-" + elapsed(amount);
}

}  // namespace tindra::PlaybackTimeFormat
