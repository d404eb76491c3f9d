// NowPlayingActivityPolicy: turns each new snapshot into the `nowPlaying` activity event, if
// any: shown while playing, lingering briefly after a pause, ended when nothing plays.
#pragma once

#include <optional>

#include "activity/activity_event.h"
#include "nowplaying/now_playing_paused_linger.h"
#include "nowplaying/now_playing_snapshot.h"

namespace tindra::NowPlayingActivityPolicy {

// `wasPlaying`: the previous snapshot existed and was playing. A paused track that was not just
// paused yields no event, so a repeated paused report never restarts the linger.
std::optional<ActivityEvent> event(const std::optional<NowPlayingSnapshot>& current,
                                   bool wasPlaying, NowPlayingPausedLinger linger);

}  // namespace tindra::NowPlayingActivityPolicy
