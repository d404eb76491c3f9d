#include "nowplaying/artwork_data_locator.h"

#include <cstring>

namespace tindra {
namespace {

constexpr std::size_t notFound = std::string_view::npos;

bool isWhiteSpace(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

// The closing quote of the string whose contents start at `from`: the first quote preceded by
// an even run of backslashes. memchr keeps a long string at memory speed.
std::size_t stringEnd(std::string_view text, std::size_t from) {
  std::size_t at = from;
  while (at < text.size()) {
    const void* quote = std::memchr(text.data() + at, '"', text.size() - at);
    if (quote == nullptr) return notFound;
    const auto q = static_cast<std::size_t>(static_cast<const char*>(quote) - text.data());
    std::size_t backslashes = 0;
    while (q - backslashes > from && text[q - backslashes - 1] == '\\') ++backslashes;
    if (backslashes % 2 == 0) return q;
    at = q + 1;
  }
  return notFound;
}

class Scan {
 public:
  explicit Scan(std::string_view line) : line_(line) {}

  std::optional<ArtworkDataSpan> run() {
    std::size_t at = skipWhiteSpace(0);
    if (at >= line_.size() || line_[at] != '{') return std::nullopt;
    while (at < line_.size()) {
      const char c = line_[at];
      if (c == '"') {
        at = string(at + 1);
        if (at == notFound) return std::nullopt;
      } else if (c == '{' || c == '[') {
        ++depth_;
        payloadOpen_ = payloadOpen_ || (c == '{' && expectingPayload_ && depth_ == 2);
        expectingPayload_ = expectingArtwork_ = false;
        ++at;
      } else if (c == '}' || c == ']') {
        if (--depth_ < 2) payloadOpen_ = false;
        expectingPayload_ = expectingArtwork_ = false;
        ++at;
      } else {
        if (!isWhiteSpace(c)) expectingPayload_ = expectingArtwork_ = false;
        ++at;
      }
    }
    if (ambiguous_ || payloadMembers_ != 1 || artworkMembers_ != 1 || !found_) return std::nullopt;
    return found_;
  }

 private:
  std::size_t skipWhiteSpace(std::size_t at) const {
    while (at < line_.size() && isWhiteSpace(line_[at])) ++at;
    return at;
  }

  // Handles the string whose contents start at `begin`; returns where scanning goes on.
  std::size_t string(std::size_t begin) {
    const std::size_t end = stringEnd(line_, begin);
    if (end == notFound) return notFound;
    const std::size_t next = skipWhiteSpace(end + 1);
    if (next < line_.size() && line_[next] == ':') {
      memberName(line_.substr(begin, end - begin));
      return next + 1;
    }
    if (expectingArtwork_) found_ = ArtworkDataSpan{begin, end};
    expectingPayload_ = expectingArtwork_ = false;
    return end + 1;
  }

  void memberName(std::string_view name) {
    expectingPayload_ = expectingArtwork_ = false;
    const bool watched = depth_ == 1 || (depth_ == 2 && payloadOpen_);
    if (!watched) return;
    if (name.find('\\') != std::string_view::npos) ambiguous_ = true;
    if (depth_ == 1 && name == "payload") {
      ++payloadMembers_;
      expectingPayload_ = true;
    } else if (depth_ == 2 && name == "artworkData") {
      ++artworkMembers_;
      expectingArtwork_ = true;
    }
  }

  std::string_view line_;
  long depth_ = 0;
  bool payloadOpen_ = false;  // inside the object that is the value of "payload"
  bool expectingPayload_ = false;
  bool expectingArtwork_ = false;
  bool ambiguous_ = false;
  int payloadMembers_ = 0;
  int artworkMembers_ = 0;
  std::optional<ArtworkDataSpan> found_;
};

}  // namespace

std::optional<ArtworkDataSpan> locateArtworkData(std::string_view line) {
  return Scan(line).run();
}

}  // namespace tindra
