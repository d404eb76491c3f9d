// AdapterMessageParser: turns the adapter's stream of JSON lines into snapshots. Data messages
// replace or merge into the accumulated state; each complete line yields a snapshot (none when
// nothing plays) or a ParseError, and no input stops the parser. Memory stays bounded by the
// line limit. One parser serves one child process; a restarted child gets a fresh one.
// Two optional payload members are read only when present, so an adapter that never sends them
// keeps its meaning: "capabilities" (the raw bits of the commands the player takes; every
// command without it) and "artworkURL" (a cover address, used when "artworkData" gives none).
#pragma once

#include <cstddef>
#include <cstdint>
#include <expected>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/enum_table.h"
#include "base/json_value.h"
#include "nowplaying/adapter_envelope.h"
#include "nowplaying/adapter_state_fields.h"
#include "nowplaying/now_playing_snapshot.h"

namespace tindra {

class AdapterMessageParser {
 public:
  static constexpr std::size_t maxLineLength = 16'777'216;     // bytes, without the newline
  static constexpr std::size_t artworkTextLimit = 11'184'812;  // a cover's text is shorter
  static constexpr std::size_t defaultDirectArtworkThreshold = 65'536;
  static constexpr std::size_t maxArtworkURLLength = 8192;  // longer is no cover address

  struct ParseError {
    enum class Kind { unexpectedType, notJSONObject, missingPayload, lineTooLong };
    Kind kind;
    std::optional<std::string> type;  // the "type" text, for unexpectedType when it was a string

    static ParseError unexpectedType(std::optional<std::string> type) {
      return {Kind::unexpectedType, std::move(type)};
    }
    static ParseError notJSONObject() { return {Kind::notJSONObject, std::nullopt}; }
    static ParseError missingPayload() { return {Kind::missingPayload, std::nullopt}; }
    static ParseError lineTooLong() { return {Kind::lineTooLong, std::nullopt}; }

    // "unexpected type \"status\"", "line too long", for logs.
    std::string description() const;
    friend bool operator==(const ParseError&, const ParseError&) = default;
  };

  // A snapshot, none when nothing plays, or why the line was refused.
  using Result = std::expected<std::optional<NowPlayingSnapshot>, ParseError>;

  // Ways around the JSON tree that never change a result: lines of at least
  // `directArtworkThreshold` bytes have their cover decoded straight from the line, and plain
  // lines are read without a tree when `scanPlainLines` is set.
  struct Shortcuts {
    std::size_t directArtworkThreshold = defaultDirectArtworkThreshold;
    bool scanPlainLines = true;
  };

  AdapterMessageParser() = default;
  explicit AdapterMessageParser(Shortcuts shortcuts) : shortcuts_(shortcuts) {}

  // Frames `bytes` into lines (ending at "\n") and parses each complete one, in order.
  std::vector<Result> feed(std::string_view bytes);

  // Parses one line without its newline.
  Result parse(std::string_view line);

  // The merged payload of all data messages so far.
  const JSONValue::Object& state() const { return state_; }
  // The number of accepted data messages.
  std::int64_t messageCount() const { return messageCount_; }
  // The last decoded cover.
  const std::optional<NowPlayingSnapshot::Artwork>& artwork() const { return artwork_; }
  // Bytes after the last newline: the line still arriving.
  const std::string& buffer() const { return buffer_; }
  // True while the rest of an over-long line is being skipped.
  bool discardingOversizedLine() const { return discardingOversizedLine_; }

 private:
  // Decoded cover bytes, not yet shared.
  struct Cover {
    std::shared_ptr<std::uint8_t[]> data;
    std::size_t size;
  };

  static std::optional<Cover> decodeCover(std::string_view text);
  static std::optional<Cover> decodeArtwork(std::string_view text);
  void appendToBuffer(std::string_view piece);
  bool readEnvelope(std::string_view line, AdapterEnvelope& envelope) const;
  std::optional<Result> parseWithDirectArtwork(std::string_view line);
  Result accept(AdapterEnvelope& envelope, std::optional<Cover> decodedArtwork);
  void merge(AdapterEnvelope& envelope);
  void recomputeArtwork(std::optional<Cover> decodedArtwork);
  Result snapshot() const;

  // Reused from line to line so reading one allocates nothing; never part of the parser's
  // value, so copies start with an empty one (the fields are found again on first use).
  struct Scratch {
    AdapterEnvelope envelope;
    AdapterStateFields fields;  // points into `state_`
    bool fieldsKnown = false;
    Scratch() = default;
    Scratch(const Scratch&) {}
    Scratch& operator=(const Scratch&) { return *this; }
  };

  JSONValue::Object state_;
  std::int64_t messageCount_ = 0;
  std::optional<NowPlayingSnapshot::Artwork> artwork_;
  std::string buffer_;
  bool discardingOversizedLine_ = false;
  Shortcuts shortcuts_;
  Scratch scratch_;
};

template <>
struct EnumTable<AdapterMessageParser::ParseError::Kind> {
  using E = AdapterMessageParser::ParseError::Kind;
  static constexpr std::array cases{
      EnumCase{E::unexpectedType, "unexpectedType"}, EnumCase{E::notJSONObject, "notJSONObject"},
      EnumCase{E::missingPayload, "missingPayload"}, EnumCase{E::lineTooLong, "lineTooLong"}};
};

}  // namespace tindra
