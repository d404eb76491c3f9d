// AppleScriptPlayer: the four players the fallback source asks through AppleScript (Apple Music,
// Spotify, and YouTube tabs in Safari and Chrome). Builds each player's read and command scripts
// word for word and parses the one-line output of a read script into a Status. Pure: the app
// runs the scripts and passes the time the output was sampled.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "base/enum_table.h"
#include "nowplaying/now_playing_capabilities.h"
#include "nowplaying/now_playing_command.h"
#include "nowplaying/now_playing_snapshot.h"

namespace tindra {

enum class AppleScriptPlayer { music, spotify, safari, chrome };

template <>
struct EnumTable<AppleScriptPlayer> {
  static constexpr std::array cases{
      EnumCase{AppleScriptPlayer::music, "music"}, EnumCase{AppleScriptPlayer::spotify, "spotify"},
      EnumCase{AppleScriptPlayer::safari, "safari"}, EnumCase{AppleScriptPlayer::chrome, "chrome"}};
};

// What one read script reported.
struct AppleScriptPlayerStatus {
  enum class Kind { playing, notRunning, idle, unreadable };
  Kind kind = Kind::unreadable;
  std::optional<NowPlayingSnapshot> snapshot;  // for `playing` only; playing or paused

  static AppleScriptPlayerStatus playing(NowPlayingSnapshot snapshot) {
    return {Kind::playing, std::move(snapshot)};
  }
  static AppleScriptPlayerStatus notRunning() { return {Kind::notRunning, std::nullopt}; }
  static AppleScriptPlayerStatus idle() { return {Kind::idle, std::nullopt}; }
  static AppleScriptPlayerStatus unreadable() { return {Kind::unreadable, std::nullopt}; }

  friend bool operator==(const AppleScriptPlayerStatus&, const AppleScriptPlayerStatus&) = default;
};

template <>
struct EnumTable<AppleScriptPlayerStatus::Kind> {
  using E = AppleScriptPlayerStatus::Kind;
  static constexpr std::array cases{
      EnumCase{E::playing, "playing"}, EnumCase{E::notRunning, "notRunning"},
      EnumCase{E::idle, "idle"}, EnumCase{E::unreadable, "unreadable"}};
};

// "com.apple.Music", "com.spotify.client", "com.apple.Safari", "com.google.Chrome".
std::string_view bundleIdentifier(AppleScriptPlayer player);

// What the player's scripts can do: everything for Music and Spotify; play, pause, toggle, next
// and seek for tabs.
NowPlayingCapabilities capabilities(AppleScriptPlayer player);

// The read script, whose result is one line of fields separated by character 31.
std::string readScript(AppleScriptPlayer player);

// The script that carries out `command`; none when the player cannot (previous, shuffle and
// repeat in a tab) or when a seek is not finite or outside 0 ... 604,800 seconds.
std::optional<std::string> commandScript(AppleScriptPlayer player,
                                         const NowPlayingCommand& command);

// Reads a read script's output. `sampledAt` (seconds since 1970, best the middle of the script's
// run) becomes the position's timestamp; a playing record advances at rate 1, a paused one not.
AppleScriptPlayerStatus parse(AppleScriptPlayer player, std::string_view output, double sampledAt);

}  // namespace tindra
