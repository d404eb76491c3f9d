#include "nowplaying/itunes_artwork_search.h"

#include <array>
#include <charconv>
#include <utility>

#include "base/json_reader.h"
#include "base/unicode_text.h"

namespace tindra::ITunesArtworkSearch {
namespace {

constexpr std::string_view thumbnailSize = "100x100bb";
constexpr std::array<std::string_view, 2> releaseSuffixes{" - ep", " - single"};

bool isUnreserved(unsigned char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' ||
         c == '.' || c == '_' || c == '~';
}

std::string_view entity(ArtworkCacheKey::Kind kind) {
  return kind == ArtworkCacheKey::Kind::song ? "song" : "album";
}

std::string coverSize() {
  const std::string pixels = std::to_string(coverPixels);
  return pixels + "x" + pixels + "bb";
}

std::string replacingAll(std::string text, std::string_view from, std::string_view to) {
  for (std::size_t at = text.find(from); at != std::string::npos;
       at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
  return text;
}

const std::string* stringMember(const JSONValue::Object& object, std::string_view name) {
  const auto found = object.find(name);
  return found == object.end() ? nullptr : found->second.asString();
}

bool matches(const std::string* text, const std::string& normalizedWanted) {
  return text != nullptr && normalizedForMatching(*text) == normalizedWanted;
}

}  // namespace

std::string percentEncoded(std::string_view text) {
  static constexpr char hexDigits[] = "0123456789ABCDEF";
  std::string out;
  out.reserve(text.size());
  for (const char ch : text) {
    const auto c = static_cast<unsigned char>(ch);
    if (isUnreserved(c)) {
      out += ch;
    } else {
      out += '%';
      out += hexDigits[c >> 4];
      out += hexDigits[c & 0xF];
    }
  }
  return out;
}

std::string request(const ArtworkCacheKey& key) {
  return "https://" + std::string(host) +
         "/search?term=" + percentEncoded(key.artist + " " + key.name) +
         "&media=music&entity=" + std::string(entity(key.kind)) + "&limit=10";
}

std::optional<std::string> requestIfAllowed(const ArtworkCacheKey& key, bool onlineLookupEnabled,
                                            const ArtworkMissMemo& misses, double now) {
  if (!onlineLookupEnabled || misses.isBlocked(key, now)) return std::nullopt;
  return request(key);
}

std::string normalizedForMatching(std::string_view text) {
  std::string folded = foldedCaseAndDiacritics(text);
  for (std::string_view suffix : releaseSuffixes) {
    if (folded.ends_with(suffix)) {
      folded.resize(folded.size() - suffix.size());
      break;
    }
  }
  return folded;
}

std::optional<std::string> artworkURL(std::string_view response, const ArtworkCacheKey& key) {
  if (response.size() > maxResponseBytes) return std::nullopt;
  const auto document = JSONReader::parse(response);
  if (!document) return std::nullopt;
  const JSONValue* results = document->find("results");
  const JSONValue::Array* list = results == nullptr ? nullptr : results->asArray();
  if (list == nullptr) return std::nullopt;

  const std::string artist = normalizedForMatching(key.artist);
  const std::string name = normalizedForMatching(key.name);
  const std::string_view nameMember =
      key.kind == ArtworkCacheKey::Kind::song ? "trackName" : "collectionName";
  for (const JSONValue& result : *list) {
    const JSONValue::Object* object = result.asObject();
    if (object == nullptr || !matches(stringMember(*object, "artistName"), artist)) continue;
    if (!matches(stringMember(*object, nameMember), name)) continue;
    const std::string* thumbnail = stringMember(*object, "artworkUrl100");
    if (thumbnail == nullptr || thumbnail->empty()) return std::nullopt;
    return replacingAll(*thumbnail, thumbnailSize, coverSize());
  }
  return std::nullopt;
}

}  // namespace tindra::ITunesArtworkSearch
