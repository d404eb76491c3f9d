// BannerButton: a button of a notification banner, made from one of the banner's action names.
// Only actions named "Name:<label>…" are buttons; pressing one performs `rawAction` on the banner.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tindra {

struct BannerButton {
  std::string name;       // the label: the text after "Name:" up to the first line break
  std::string rawAction;  // the whole action name

  // None unless `action` begins with "Name:" and a non-empty label follows.
  static std::optional<BannerButton> fromAction(std::string_view action);

  friend bool operator==(const BannerButton&, const BannerButton&) = default;
};

}  // namespace tindra
