#include "base/readable_color.h"

#include <algorithm>
#include <cmath>

namespace tindra::ReadableColor {
namespace {

double clampedChannel(double channel) {
  if (!(channel > 0)) return 0;  // negative and NaN alike
  return std::min(channel, 1.0);
}

double linearChannel(double channel) {
  const double c = clampedChannel(channel);
  if (c <= 0.04045) return c / 12.92;
  return std::pow((c + 0.055) / 1.055, 2.4);
}

}  // namespace

double relativeLuminance(const SRGBColor& color) {
  return 0.2126 * linearChannel(color.red) + 0.7152 * linearChannel(color.green) +
         0.0722 * linearChannel(color.blue);
}

double contrastRatio(double luminance1, double luminance2) {
  return (std::max(luminance1, luminance2) + 0.05) / (std::min(luminance1, luminance2) + 0.05);
}

double contrastRatio(const SRGBColor& color1, const SRGBColor& color2) {
  return contrastRatio(relativeLuminance(color1), relativeLuminance(color2));
}

SRGBColor readableTextColor(double backgroundLuminance) {
  const double againstBlack = contrastRatio(backgroundLuminance, 0.0);
  const double againstWhite = contrastRatio(backgroundLuminance, 1.0);
  return againstBlack <= againstWhite ? white : black;
}

SRGBColor readableTextColor(const SRGBColor& background) {
  return readableTextColor(relativeLuminance(background));
}

}  // namespace tindra::ReadableColor
