// ArtworkURLPolicy: which remote cover addresses the app may download. Only the two catalogue
// image hosts qualify (Spotify's i.scdn.co and Apple's *.mzstatic.com), over https; a plain
// http address on one of them is upgraded, Spotify's older open.spotify.com/image/<id> form is
// taken to the image host it redirects to, and anything else is never fetched, so a player
// cannot make the app contact an arbitrary server.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/enum_table.h"

namespace tindra::ArtworkURLPolicy {

enum class ImageHost { spotify, apple };

// The catalogue host of an http or https address; none for any other host or scheme.
std::optional<ImageHost> imageHost(std::string_view url);

// The address to download: `url` itself with "https", upgraded from "http", or the image host's
// address of a Spotify page image; none when it is not a catalogue cover.
std::optional<std::string> downloadURL(std::string_view url);

}  // namespace tindra::ArtworkURLPolicy

namespace tindra {

template <>
struct EnumTable<ArtworkURLPolicy::ImageHost> {
  using ImageHost = ArtworkURLPolicy::ImageHost;
  static constexpr std::array cases{EnumCase{ImageHost::spotify, "spotify"},
                                    EnumCase{ImageHost::apple, "apple"}};
};

}  // namespace tindra
