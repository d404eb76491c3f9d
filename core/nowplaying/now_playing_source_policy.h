// NowPlayingSourcePolicy: whether the adapter's self-test result sends the notch to the player
// scripts (the basic mode), and whether to tell the user so, at most once per system version.
#pragma once

#include <optional>
#include <string_view>

#include "nowplaying/adapter_probe_result.h"

namespace tindra::NowPlayingSourcePolicy {

// True for every result but `passed`.
bool usesFallback(const AdapterProbeResult& probe);

// True when falling back and the notice was not yet shown on `osVersion`; `noticeOSVersion` is
// the version stored when it was last shown.
bool shouldShowFallbackNotice(const AdapterProbeResult& probe, std::string_view osVersion,
                              const std::optional<std::string_view>& noticeOSVersion);

}  // namespace tindra::NowPlayingSourcePolicy
