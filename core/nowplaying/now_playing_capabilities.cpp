#include "nowplaying/now_playing_capabilities.h"

#include <type_traits>

namespace tindra {

NowPlayingCapabilities requiredCapability(const NowPlayingCommand& command) {
  return std::visit(
      [](const auto& c) -> NowPlayingCapabilities {
        using C = std::decay_t<decltype(c)>;
        if constexpr (std::is_same_v<C, NowPlayingCommand::Seek>) {
          return NowPlayingCapabilities::seek();
        } else if constexpr (std::is_same_v<C, NowPlayingCommand::SetShuffle>) {
          return NowPlayingCapabilities::shuffle();
        } else if constexpr (std::is_same_v<C, NowPlayingCommand::SetRepeat>) {
          return NowPlayingCapabilities::repeat();
        } else if constexpr (std::is_same_v<C, NowPlayingCommand::NextTrack>) {
          return NowPlayingCapabilities::nextTrack();
        } else if constexpr (std::is_same_v<C, NowPlayingCommand::PreviousTrack>) {
          return NowPlayingCapabilities::previousTrack();
        } else {
          return NowPlayingCapabilities::playPause();
        }
      },
      command.value);
}

bool NowPlayingCapabilities::allows(const NowPlayingCommand& command) const {
  return contains(requiredCapability(command));
}

}  // namespace tindra
