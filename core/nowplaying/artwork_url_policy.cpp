#include "nowplaying/artwork_url_policy.h"

#include <uriparser/Uri.h>

#include <algorithm>

#include "base/text_case.h"

namespace tindra::ArtworkURLPolicy {
namespace {

constexpr std::string_view spotifyHost = "i.scdn.co";
// Older Spotify clients name their covers https://open.spotify.com/image/<id>, which only
// redirects to the image host.
constexpr std::string_view spotifyPageHost = "open.spotify.com";
constexpr std::string_view spotifyImagePath = "/image/";
constexpr std::string_view appleDomain = ".mzstatic.com";  // is1-ssl.mzstatic.com … is5-ssl

std::string_view rangeText(const UriTextRangeA& range) {
  if (range.first == nullptr || range.afterLast == nullptr) return {};
  return {range.first, static_cast<std::size_t>(range.afterLast - range.first)};
}

struct AddressParts {
  std::string scheme;
  std::string host;
  std::string path;  // "/image/ab67"; empty when the address has none
  bool hasPort = false;
  bool hasQueryOrFragment = false;
};

std::optional<AddressParts> addressParts(std::string_view url) {
  UriUriA uri;
  const char* error = nullptr;
  if (uriParseSingleUriExA(&uri, url.data(), url.data() + url.size(), &error) != URI_SUCCESS) {
    return std::nullopt;
  }
  AddressParts parts;
  parts.scheme = lowercased(rangeText(uri.scheme));
  parts.host = lowercased(rangeText(uri.hostText));
  for (const UriPathSegmentA* segment = uri.pathHead; segment != nullptr; segment = segment->next) {
    parts.path += "/";
    parts.path += rangeText(segment->text);
  }
  parts.hasPort = uri.portText.first != nullptr;
  parts.hasQueryOrFragment = uri.query.first != nullptr || uri.fragment.first != nullptr;
  uriFreeUriMembersA(&uri);
  return parts;
}

bool isWebScheme(const AddressParts& parts) {
  return parts.scheme == "https" || parts.scheme == "http";
}

// The cover id of an open.spotify.com/image/<id> address: letters and digits only, so the
// address made from it cannot point anywhere else.
std::optional<std::string> spotifyPageImageID(const AddressParts& parts) {
  if (parts.host != spotifyPageHost || parts.hasPort || parts.hasQueryOrFragment ||
      !parts.path.starts_with(spotifyImagePath)) {
    return std::nullopt;
  }
  const std::string_view id = std::string_view(parts.path).substr(spotifyImagePath.size());
  const bool plain = !id.empty() && id.size() <= 128 && std::ranges::all_of(id, [](char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
  });
  return plain ? std::optional<std::string>(id) : std::nullopt;
}

}  // namespace

std::optional<ImageHost> imageHost(std::string_view url) {
  const auto parts = addressParts(url);
  if (!parts || !isWebScheme(*parts)) return std::nullopt;
  if (parts->host == spotifyHost || spotifyPageImageID(*parts)) return ImageHost::spotify;
  if (parts->host.size() > appleDomain.size() && parts->host.ends_with(appleDomain)) {
    return ImageHost::apple;
  }
  return std::nullopt;
}

std::optional<std::string> downloadURL(std::string_view url) {
  const auto parts = addressParts(url);
  if (!parts || !isWebScheme(*parts)) return std::nullopt;
  if (const auto id = spotifyPageImageID(*parts)) {
    return "https://" + std::string(spotifyHost) + std::string(spotifyImagePath) + *id;
  }
  if (!imageHost(url)) return std::nullopt;
  const std::size_t colon = url.find(':');
  return "https" + std::string(url.substr(colon));
}

}  // namespace tindra::ArtworkURLPolicy
