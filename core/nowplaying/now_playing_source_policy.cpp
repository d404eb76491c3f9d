#include "nowplaying/now_playing_source_policy.h"

namespace tindra::NowPlayingSourcePolicy {

bool usesFallback(const AdapterProbeResult& probe) {
  return probe.kind != AdapterProbeResult::Kind::passed;
}

bool shouldShowFallbackNotice(const AdapterProbeResult& probe, std::string_view osVersion,
                              const std::optional<std::string_view>& noticeOSVersion) {
  if (!usesFallback(probe)) return false;
  return !noticeOSVersion || *noticeOSVersion != osVersion;
}

}  // namespace tindra::NowPlayingSourcePolicy
