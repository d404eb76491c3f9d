// AccentColorPolicy: the colour that tints the progress bar, taken from the cover. The app
// decodes the image into 8-bit RGBA pixels (not premultiplied); the policy finds the cover's
// dominant vivid colour and uses it only when it stands out against the bar's background.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "base/srgb_color.h"

namespace tindra::AccentColorPolicy {

// Contrast a tint needs against the background: WCAG's 3:1 for graphical objects.
inline constexpr double minimumContrast = 3.0;

// The dominant colour of RGBA pixels (4 bytes each; a trailing partial pixel is ignored):
// the average of the busiest cell of a coarse colour grid, where each pixel counts by how vivid
// it is, so a small bright accent beats a large grey area. Pixels less than half opaque are
// skipped; none when no pixel is left.
std::optional<SRGBColor> dominantColor(std::span<const std::uint8_t> rgba);

// True when `color` contrasts with `background` by at least `minimumContrast`.
bool isReadable(const SRGBColor& color, const SRGBColor& background);

// The cover's tint for the bar, or none (use the standard colour) when it would not be readable.
std::optional<SRGBColor> accentColor(std::span<const std::uint8_t> rgba,
                                     const SRGBColor& background);

}  // namespace tindra::AccentColorPolicy
