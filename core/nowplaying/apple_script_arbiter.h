// AppleScriptArbiter: picks the one track the script source publishes when several players
// report at once. A playing player outranks a paused one; among equals the fixed player order
// wins (Music, Spotify, Safari, Chrome), so the answer never depends on the order of polling.
#pragma once

#include <optional>
#include <span>

#include "nowplaying/apple_script_player.h"

namespace tindra::AppleScriptArbiter {

struct Report {
  AppleScriptPlayer player;
  AppleScriptPlayerStatus status;
};

// The snapshot to publish; none when no player has a track (every one not running, idle or
// unreadable).
std::optional<NowPlayingSnapshot> pick(std::span<const Report> reports);

}  // namespace tindra::AppleScriptArbiter
