// VisibilitySettings: the user's choices for when the notch steps aside. Defaults are those of
// the settings store.
#pragma once

#include <set>
#include <string>

namespace tindra {

struct VisibilitySettings {
  bool hideInFullScreen = true;
  bool hideDuringMissionControl = false;
  bool hideForGames = true;
  // Bundle identifiers the user marks as games, as GameListParser returns them; matched without
  // regard to case.
  std::set<std::string> gameBundleIdentifiers{};

  friend bool operator==(const VisibilitySettings&, const VisibilitySettings&) = default;
};

}  // namespace tindra
