#include "nowplaying/accent_color_policy.h"

#include <algorithm>
#include <array>

#include "base/readable_color.h"

namespace tindra::AccentColorPolicy {
namespace {

constexpr int levelsPerChannel = 4;  // a 4×4×4 grid: coarse enough to gather shades of one hue
constexpr std::uint8_t minimumAlpha = 128;
constexpr double greyWeight = 0.05;  // greys still count, so a grey cover yields grey

struct Cell {
  double weight = 0;
  double red = 0;
  double green = 0;
  double blue = 0;
};

int cellIndex(std::uint8_t r, std::uint8_t g, std::uint8_t b) {
  const auto level = [](std::uint8_t channel) { return channel * levelsPerChannel / 256; };
  return (level(r) * levelsPerChannel + level(g)) * levelsPerChannel + level(b);
}

}  // namespace

std::optional<SRGBColor> dominantColor(std::span<const std::uint8_t> rgba) {
  std::array<Cell, levelsPerChannel * levelsPerChannel * levelsPerChannel> cells{};
  for (std::size_t i = 0; i + 4 <= rgba.size(); i += 4) {
    const std::uint8_t r = rgba[i];
    const std::uint8_t g = rgba[i + 1];
    const std::uint8_t b = rgba[i + 2];
    if (rgba[i + 3] < minimumAlpha) continue;
    const double chroma = (std::max({r, g, b}) - std::min({r, g, b})) / 255.0;
    Cell& cell = cells[static_cast<std::size_t>(cellIndex(r, g, b))];
    const double weight = greyWeight + chroma;
    cell.weight += weight;
    cell.red += weight * r;
    cell.green += weight * g;
    cell.blue += weight * b;
  }
  const Cell& busiest = *std::max_element(
      cells.begin(), cells.end(), [](const Cell& a, const Cell& b) { return a.weight < b.weight; });
  if (busiest.weight == 0) return std::nullopt;
  const double scale = 1.0 / (busiest.weight * 255.0);
  return SRGBColor{busiest.red * scale, busiest.green * scale, busiest.blue * scale};
}

bool isReadable(const SRGBColor& color, const SRGBColor& background) {
  return ReadableColor::contrastRatio(color, background) >= minimumContrast;
}

std::optional<SRGBColor> accentColor(std::span<const std::uint8_t> rgba,
                                     const SRGBColor& background) {
  const std::optional<SRGBColor> color = dominantColor(rgba);
  if (!color || !isReadable(*color, background)) return std::nullopt;
  return color;
}

}  // namespace tindra::AccentColorPolicy
