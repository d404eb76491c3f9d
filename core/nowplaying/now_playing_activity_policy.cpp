#include "nowplaying/now_playing_activity_policy.h"

namespace tindra::NowPlayingActivityPolicy {

std::optional<ActivityEvent> event(const std::optional<NowPlayingSnapshot>& current,
                                   bool wasPlaying, NowPlayingPausedLinger linger) {
  if (!current) return ActivityEvent::ended(ActivityKind::nowPlaying);
  if (current->isPlaying) return ActivityEvent::began(ActivityKind::nowPlaying);
  if (wasPlaying) return ActivityEvent::began(ActivityKind::nowPlaying, lingerDuration(linger));
  return std::nullopt;
}

}  // namespace tindra::NowPlayingActivityPolicy
