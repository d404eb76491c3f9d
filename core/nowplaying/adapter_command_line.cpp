#include "nowplaying/adapter_command_line.h"

#include <cmath>
#include <type_traits>

namespace tindra::AdapterCommandLine {
namespace {

using Words = std::array<std::string, 2>;

// MediaRemote's command codes; 3 (stop) is never sent.
constexpr int playCode = 0;
constexpr int pauseCode = 1;
constexpr int togglePlayPauseCode = 2;
constexpr int nextTrackCode = 4;
constexpr int previousTrackCode = 5;

std::optional<Words> seekWords(double position) {
  if (!std::isfinite(position) || position < 0 || position > maxSeekPosition) return std::nullopt;
  return Words{"seek", std::to_string(std::llround(position * 1'000'000))};
}

}  // namespace

std::vector<std::string> streamArguments(long long debounceMilliseconds, bool includeArtwork) {
  const long long debounce = debounceMilliseconds < 0 ? 0 : debounceMilliseconds;
  std::vector<std::string> words{"stream", "--micros", "--debounce=" + std::to_string(debounce)};
  if (!includeArtwork) words.emplace_back("--no-artwork");
  return words;
}

std::optional<std::array<std::string, 2>> sendArguments(const NowPlayingCommand& command) {
  return std::visit(
      [](const auto& c) -> std::optional<Words> {
        using C = std::decay_t<decltype(c)>;
        if constexpr (std::is_same_v<C, NowPlayingCommand::Seek>) {
          return seekWords(c.to);
        } else if constexpr (std::is_same_v<C, NowPlayingCommand::SetShuffle>) {
          return Words{"shuffle", std::to_string(adapterCode(c.mode))};
        } else if constexpr (std::is_same_v<C, NowPlayingCommand::SetRepeat>) {
          return Words{"repeat", std::to_string(adapterCode(c.mode))};
        } else if constexpr (std::is_same_v<C, NowPlayingCommand::Play>) {
          return Words{"send", std::to_string(playCode)};
        } else if constexpr (std::is_same_v<C, NowPlayingCommand::Pause>) {
          return Words{"send", std::to_string(pauseCode)};
        } else if constexpr (std::is_same_v<C, NowPlayingCommand::TogglePlayPause>) {
          return Words{"send", std::to_string(togglePlayPauseCode)};
        } else if constexpr (std::is_same_v<C, NowPlayingCommand::NextTrack>) {
          return Words{"send", std::to_string(nextTrackCode)};
        } else {
          static_assert(std::is_same_v<C, NowPlayingCommand::PreviousTrack>);
          return Words{"send", std::to_string(previousTrackCode)};
        }
      },
      command.value);
}

}  // namespace tindra::AdapterCommandLine
