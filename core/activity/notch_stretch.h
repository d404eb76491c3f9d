// NotchStretch: the small rubber-band growth of the notch shape while it is pulled. The
// constructor clamps, so every stretch holds usable values (scales finite and non-negative,
// anchor within 0.3...1.0).
#pragma once

namespace tindra {

class NotchStretch {
 public:
  // Scales below 0 or not finite become 0; the anchor is kept within 0.3...1.0 and becomes 0.5
  // when not finite.
  NotchStretch(double widthScale, double heightScale, double anchorX);

  static NotchStretch identity() { return {1.0, 1.0, 0.5}; }

  // How much a pull grows the notch: 0 at rest, easing out to 0.12 at a pull of 1 or more
  // (either sign); 0 for a pull that is not finite.
  static double amount(double pull);

  double widthScale() const { return widthScale_; }
  double heightScale() const { return heightScale_; }
  double anchorX() const { return anchorX_; }
  // Both scales at 1; the anchor does not matter then.
  bool isIdentity() const { return widthScale_ == 1.0 && heightScale_ == 1.0; }

  friend bool operator==(const NotchStretch&, const NotchStretch&) = default;

 private:
  double widthScale_;
  double heightScale_;
  double anchorX_;
};

}  // namespace tindra
