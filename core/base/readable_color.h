// ReadableColor: picks black or white text for a background colour by WCAG 2 contrast. Channels
// are clamped to 0...1 first (negative or NaN counts as 0), so every function is total.
#pragma once

#include "base/srgb_color.h"

namespace tindra::ReadableColor {

inline constexpr SRGBColor black{0, 0, 0};
inline constexpr SRGBColor white{1, 1, 1};

// Relative luminance, 0 (black) ... 1 (white).
double relativeLuminance(const SRGBColor& color);

// Contrast ratio of two luminances, 1 ... 21; the order of the arguments does not matter.
double contrastRatio(double luminance1, double luminance2);
// Contrast ratio of two colours.
double contrastRatio(const SRGBColor& color1, const SRGBColor& color2);

// White or black, whichever contrasts more with a background of this luminance (0...1, as
// relativeLuminance gives it); white on a tie.
SRGBColor readableTextColor(double backgroundLuminance);
// White or black, whichever contrasts more with `background`; white on a tie.
SRGBColor readableTextColor(const SRGBColor& background);

}  // namespace tindra::ReadableColor
