#include "focus/banner_button.h"

#include "base/line_break.h"

namespace tindra {

std::optional<BannerButton> BannerButton::fromAction(std::string_view action) {
  constexpr std::string_view prefix = "Name:";
  if (!action.starts_with(prefix)) return std::nullopt;
  std::string_view label = action.substr(prefix.size());
  if (const std::optional<LineBreak> lineBreak = findLineBreak(label)) {
    label = label.substr(0, lineBreak->offset);
  }
  if (label.empty()) return std::nullopt;
  return BannerButton{std::string(label), std::string(action)};
}

}  // namespace tindra
