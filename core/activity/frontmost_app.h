// FrontmostApp: the application in front, as the workspace reports it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "activity/rect.h"

namespace tindra {

struct FrontmostApp {
  std::optional<std::string> bundleIdentifier{};
  std::int32_t processIdentifier = 0;
  // The declared application category, e.g. "public.app-category.games".
  std::optional<std::string> category{};
  // Frames (bottom-left points) of the app's windows the platform reports as full screen.
  std::vector<Rect> fullScreenWindowFrames{};

  friend bool operator==(const FrontmostApp&, const FrontmostApp&) = default;
};

}  // namespace tindra
