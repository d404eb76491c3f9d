// SRGBColor: a colour in the sRGB space as three channels, nominally 0...1. Values outside that
// range (or NaN) are kept as given; the functions that read them say how they treat them.
#pragma once

namespace tindra {

struct SRGBColor {
  double red = 0;
  double green = 0;
  double blue = 0;

  friend bool operator==(const SRGBColor&, const SRGBColor&) = default;
};

}  // namespace tindra
