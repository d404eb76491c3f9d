// MprisPayload: one player's state as the adapter protocol's payload: the keys and units the
// notch's parser reads ("title", "playing", "durationMicros", "elapsedTimeMicros",
// "timestampEpochMicros", "playbackRate", "shuffleMode", "repeatMode", "bundleIdentifier",
// "artworkData", ...). Values of the wrong type, empty strings and impossible numbers are left out
// rather than sent. Covers given as file:// or data: addresses travel as Base64 within the
// protocol's limit; http(s) addresses travel as they are ("artworkURL") and are not fetched
// here. "capabilities" names the commands the player takes.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "base/json_value.h"
#include "mpris_player_state.h"

namespace tindra::MprisPayload {

// The largest cover sent: its Base64 text stays below the protocol's limit.
inline constexpr std::size_t maxCoverBytes = 8'000'000;
// The longest cover address passed on; the app's parser takes no longer one.
inline constexpr std::size_t maxCoverAddressLength = 8192;

using ReadFile = std::function<std::optional<std::string>(const QString& path, std::size_t limit)>;

// The payload for `player`; no player makes the empty payload (nothing playing).
JSONValue::Object make(const std::optional<MprisPlayerState>& player, bool includeArtwork,
                       const ReadFile& readFile);

// The cover bytes of an mpris:artUrl, for file:// and data: addresses; none otherwise.
std::optional<std::string> coverBytes(const QString& artUrl, const ReadFile& readFile);

}  // namespace tindra::MprisPayload
