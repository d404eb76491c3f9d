#include "nowplaying/artwork_url_policy.h"

#include <uriparser/Uri.h>

#include "base/text_case.h"

namespace tindra::ArtworkURLPolicy {
namespace {

constexpr std::string_view spotifyHost = "i.scdn.co";
constexpr std::string_view appleDomain = ".mzstatic.com";  // is1-ssl.mzstatic.com … is5-ssl

std::string_view rangeText(const UriTextRangeA& range) {
  if (range.first == nullptr || range.afterLast == nullptr) return {};
  return {range.first, static_cast<std::size_t>(range.afterLast - range.first)};
}

struct SchemeAndHost {
  std::string scheme;
  std::string host;
};

std::optional<SchemeAndHost> schemeAndHost(std::string_view url) {
  UriUriA uri;
  const char* error = nullptr;
  if (uriParseSingleUriExA(&uri, url.data(), url.data() + url.size(), &error) != URI_SUCCESS) {
    return std::nullopt;
  }
  SchemeAndHost parts{lowercased(rangeText(uri.scheme)), lowercased(rangeText(uri.hostText))};
  uriFreeUriMembersA(&uri);
  return parts;
}

}  // namespace

std::optional<ImageHost> imageHost(std::string_view url) {
  const auto parts = schemeAndHost(url);
  if (!parts || (parts->scheme != "https" && parts->scheme != "http")) return std::nullopt;
  if (parts->host == spotifyHost) return ImageHost::spotify;
  if (parts->host.size() > appleDomain.size() && parts->host.ends_with(appleDomain)) {
    return ImageHost::apple;
  }
  return std::nullopt;
}

std::optional<std::string> downloadURL(std::string_view url) {
  if (!imageHost(url)) return std::nullopt;
  const std::size_t colon = url.find(':');
  return "https" + std::string(url.substr(colon));
}

}  // namespace tindra::ArtworkURLPolicy
