#include "nowplaying/audio_tap_target_selector.h"

namespace tindra::AudioTapTargetSelector {
namespace {

bool belongsToEither(const AudioProcessInfo& process, const std::optional<std::string>& app,
                     const std::optional<std::string>& parent) {
  if (!process.bundleIdentifier) return false;
  return (app && belongsTo(*process.bundleIdentifier, *app)) ||
         (parent && belongsTo(*process.bundleIdentifier, *parent));
}

}  // namespace

bool belongsTo(std::string_view processBundle, std::string_view appBundle) {
  if (appBundle.empty() || !processBundle.starts_with(appBundle)) return false;
  return processBundle.size() == appBundle.size() || processBundle[appBundle.size()] == '.';
}

std::vector<std::uint32_t> targets(std::span<const AudioProcessInfo> processes,
                                   const std::optional<std::string>& bundleIdentifier,
                                   const std::optional<std::string>& parentBundleIdentifier) {
  std::vector<std::uint32_t> all;
  std::vector<std::uint32_t> sounding;
  for (const AudioProcessInfo& process : processes) {
    if (!belongsToEither(process, bundleIdentifier, parentBundleIdentifier)) continue;
    all.push_back(process.objectID);
    if (process.isRunningOutput) sounding.push_back(process.objectID);
  }
  return sounding.empty() ? all : sounding;
}

}  // namespace tindra::AudioTapTargetSelector
