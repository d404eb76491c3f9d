// HUDBarMotion: how the bar moves to a new level. Presses in quick succession (a held key) glide
// linearly over the time between them; an isolated press settles with the view's own animation.
#pragma once

#include <optional>

namespace tindra {

class HUDBarMotion {
 public:
  // Changes closer together than this glide.
  static constexpr double glideWindow = 0.3;
  // The shortest glide.
  static constexpr double minimumGlide = 0.03;

  static HUDBarMotion glide(double duration) { return HUDBarMotion(duration); }
  static HUDBarMotion settle() { return HUDBarMotion(std::nullopt); }

  // The motion for a change `sinceLastChange` seconds after the previous one (none: no previous).
  static HUDBarMotion forInterval(std::optional<double> sinceLastChange);

  bool isSettle() const { return !glideDuration_; }
  // The glide's duration; none for settle.
  std::optional<double> glideDuration() const { return glideDuration_; }

  friend bool operator==(const HUDBarMotion&, const HUDBarMotion&) = default;

 private:
  explicit HUDBarMotion(std::optional<double> glideDuration) : glideDuration_(glideDuration) {}

  std::optional<double> glideDuration_;
};

}  // namespace tindra
