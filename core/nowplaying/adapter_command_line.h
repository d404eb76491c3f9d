// AdapterCommandLine: the adapter's own words for the long-lived stream and for one-shot
// transport commands. Pure; what goes before them is the platform's AdapterLaunch, and launching
// is the app's job.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "nowplaying/now_playing_command.h"
#include "nowplaying/now_playing_snapshot.h"

namespace tindra::AdapterCommandLine {

inline constexpr double commandTimeout = 5;    // seconds a transport command may run
inline constexpr double selfTestTimeout = 20;  // seconds the self-test may run
inline constexpr double maxSeekPosition = NowPlayingSnapshot::maxSeconds;

// "stream", "--micros", "--debounce=<ms>" (negative becomes 0), and "--no-artwork" when covers
// are not wanted.
std::vector<std::string> streamArguments(long long debounceMilliseconds, bool includeArtwork);

// The two words that carry out `command`; none for a seek that is not finite, negative or past
// seven days.
std::optional<std::array<std::string, 2>> sendArguments(const NowPlayingCommand& command);

}  // namespace tindra::AdapterCommandLine
