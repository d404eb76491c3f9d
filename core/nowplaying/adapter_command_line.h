// AdapterCommandLine: the argument lists that run the now-playing adapter script: the long-lived
// stream, one-shot transport commands and the self-test. Pure; launching is the app's job.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "nowplaying/now_playing_command.h"

namespace tindra::AdapterCommandLine {

inline constexpr std::string_view interpreter = "/usr/bin/perl";
inline constexpr double commandTimeout = 5;        // seconds a transport command may run
inline constexpr double selfTestTimeout = 20;      // seconds the self-test may run
inline constexpr double maxSeekPosition = 604800;  // seven days, in seconds

// "stream", "--micros", "--debounce=<ms>" (negative becomes 0), and "--no-artwork" when covers
// are not wanted.
std::vector<std::string> streamArguments(long long debounceMilliseconds, bool includeArtwork);

// The two words that carry out `command`; none for a seek that is not finite, negative or past
// seven days.
std::optional<std::array<std::string, 2>> sendArguments(const NowPlayingCommand& command);

// Everything after the interpreter: script path, framework path, then `words`.
std::vector<std::string> arguments(std::string_view scriptPath, std::string_view frameworkPath,
                                   const std::vector<std::string>& words);

// Everything after the interpreter for the self-test.
std::vector<std::string> testArguments(std::string_view scriptPath, std::string_view frameworkPath,
                                       std::string_view testClientPath);

}  // namespace tindra::AdapterCommandLine
