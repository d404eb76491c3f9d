// AudioTapTargetSelector: which audio processes the live spectrum taps for the playing track.
// A process belongs to the track's app when its bundle identifier is the app's (or the parent
// app's) or one of its helpers' ("com.google.Chrome.helper"); browsers and Spotify play from
// helper processes. Processes producing output right now are preferred.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tindra {

struct AudioProcessInfo {
  std::uint32_t objectID = 0;  // the audio system's process object
  std::int32_t processIdentifier = 0;
  std::optional<std::string> bundleIdentifier;
  bool isRunningOutput = false;
};

namespace AudioTapTargetSelector {

// True when `processBundle` is `appBundle` or a helper of it (`appBundle` + "." + more).
bool belongsTo(std::string_view processBundle, std::string_view appBundle);

// The object IDs to tap: the app's processes that produce output, or, when none does yet, all
// of the app's processes; empty when no bundle identifier is known or nothing matches.
std::vector<std::uint32_t> targets(std::span<const AudioProcessInfo> processes,
                                   const std::optional<std::string>& bundleIdentifier,
                                   const std::optional<std::string>& parentBundleIdentifier);

}  // namespace AudioTapTargetSelector
}  // namespace tindra
