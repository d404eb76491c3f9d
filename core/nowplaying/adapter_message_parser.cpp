#include "nowplaying/adapter_message_parser.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "base/base64.h"
#include "base/internet_date_time.h"
#include "base/json_reader.h"
#include "nowplaying/adapter_state_fields.h"
#include "nowplaying/artwork_data_locator.h"

namespace tindra {
namespace {

constexpr double maxSeconds = NowPlayingSnapshot::maxSeconds;
constexpr double microsPerSecond = 1'000'000;
// A line arriving in pieces is gathered in a buffer; one that grew past this (a cover's line) is
// freed once read, as covers come once a track, while the parser lives as long as the player.
constexpr std::size_t keptBufferCapacity = 64 * 1024;

// Linux allows process ids up to 2^22; a little more room costs nothing.
constexpr double maxProcessIdentifier = 2147483647;

std::optional<double> finiteNumber(const JSONValue* value) {
  const double* number = value ? value->asNumber() : nullptr;
  if (!number || !std::isfinite(*number)) return std::nullopt;
  return *number;
}

// Copies a non-empty string member straight into its place in the snapshot.
void copyNonEmptyString(const JSONValue* value, std::optional<std::string>& field) {
  const std::string* text = value ? value->asString() : nullptr;
  if (text && !text->empty()) field.emplace(*text);
}

// The microsecond member decides whenever it is a finite number, even when its value is then
// refused; the seconds member is read only in its absence.
std::optional<double> seconds(const JSONValue* micros, const JSONValue* plain) {
  if (auto value = finiteNumber(micros)) return *value / microsPerSecond;
  return finiteNumber(plain);
}

std::optional<double> timestampOf(const AdapterStateFields& fields) {
  if (auto micros = finiteNumber(fields.timestampEpochMicros); micros && *micros > 0) {
    return *micros / microsPerSecond;
  }
  const std::string* text = fields.timestamp ? fields.timestamp->asString() : nullptr;
  if (!text) return std::nullopt;
  auto parsed = parseInternetDateTime(*text);
  return parsed ? std::optional<double>(*parsed) : std::nullopt;
}

// Every command, unless the adapter names the ones its player takes: a raw value of the six
// bits. The macOS adapter never sends one, so its players keep everything.
NowPlayingCapabilities capabilitiesOf(const JSONValue* value) {
  const auto raw = finiteNumber(value);
  const NowPlayingCapabilities all = NowPlayingCapabilities::all();
  if (!raw || *raw < 0 || *raw > static_cast<double>(all.rawValue) || std::trunc(*raw) != *raw) {
    return all;
  }
  return {static_cast<std::int64_t>(*raw) & all.rawValue};
}

}  // namespace

// The cover's bytes when `text` is strict Base64; no zero-filling of megabytes first.
std::optional<AdapterMessageParser::Cover> AdapterMessageParser::decodeCover(
    std::string_view text) {
  const std::size_t size = base64DecodedSize(text);
  auto data = std::make_shared_for_overwrite<std::uint8_t[]>(size);
  if (!decodeBase64(text, std::span(data.get(), size))) return std::nullopt;
  return Cover{std::move(data), size};
}

// The cover's bytes when `text` is a usable cover: non-empty, under the limit, strict Base64,
// decoding to at least one byte.
std::optional<AdapterMessageParser::Cover> AdapterMessageParser::decodeArtwork(
    std::string_view text) {
  if (text.empty() || text.size() >= artworkTextLimit) return std::nullopt;
  return decodeCover(text);
}

std::string AdapterMessageParser::ParseError::description() const {
  switch (kind) {
    case Kind::unexpectedType:
      return type ? "unexpected type \"" + *type + "\"" : std::string("missing type");
    case Kind::notJSONObject:
      return "not a JSON object";
    case Kind::missingPayload:
      return "missing payload";
    case Kind::lineTooLong:
      return "line too long";
  }
  return "unreadable line";
}

std::vector<AdapterMessageParser::Result> AdapterMessageParser::feed(std::string_view bytes) {
  std::vector<Result> results;
  while (!bytes.empty()) {
    const void* newline = std::memchr(bytes.data(), '\n', bytes.size());
    const std::size_t pieceLength =
        newline ? static_cast<std::size_t>(static_cast<const char*>(newline) - bytes.data())
                : bytes.size();
    const std::string_view piece = bytes.substr(0, pieceLength);
    bytes.remove_prefix(newline ? pieceLength + 1 : pieceLength);

    if (discardingOversizedLine_) {
      discardingOversizedLine_ = newline == nullptr;
      continue;
    }
    if (buffer_.size() + piece.size() > maxLineLength) {
      // Reported once, when the line first grows past the limit; its rest is skipped silently.
      results.emplace_back(std::unexpect, ParseError::lineTooLong());
      std::string().swap(buffer_);
      discardingOversizedLine_ = newline == nullptr;
      continue;
    }
    if (!newline) {
      appendToBuffer(piece);
      continue;
    }
    if (buffer_.empty()) {
      results.push_back(parse(piece));
    } else {
      appendToBuffer(piece);
      results.push_back(parse(buffer_));
      buffer_.clear();
      if (buffer_.capacity() > keptBufferCapacity) std::string().swap(buffer_);
    }
  }
  return results;
}

// Grows by doubling, as a string does, but never past the line limit, so a line just under the
// limit never holds twice its size.
void AdapterMessageParser::appendToBuffer(std::string_view piece) {
  const std::size_t needed = buffer_.size() + piece.size();
  if (needed > buffer_.capacity()) {
    buffer_.reserve(std::min(std::max(needed, 2 * buffer_.capacity()), maxLineLength));
  }
  buffer_.append(piece);
}

AdapterMessageParser::Result AdapterMessageParser::parse(std::string_view line) {
  if (line.size() >= shortcuts_.directArtworkThreshold) {
    if (auto result = parseWithDirectArtwork(line)) return std::move(*result);
  }
  AdapterEnvelope& envelope = scratch_.envelope;
  if (!readEnvelope(line, envelope)) return Result(std::unexpect, ParseError::notJSONObject());
  return accept(envelope, std::nullopt);
}

bool AdapterMessageParser::readEnvelope(std::string_view line, AdapterEnvelope& envelope) const {
  if (shortcuts_.scanPlainLines && scanPlainAdapterEnvelope(line, envelope)) return true;
  auto tree = JSONReader::parse(line);
  return tree && takeAdapterEnvelope(std::move(*tree), envelope);
}

// The cover's text is cut out of the line before the JSON reader sees it and put back as a
// string afterwards. Strict Base64 text contains no quote, backslash or control character, so
// when it decodes, the cut text is exactly the string's value and the rest of the line stays
// valid or invalid JSON just as before. None means: take the ordinary path.
std::optional<AdapterMessageParser::Result> AdapterMessageParser::parseWithDirectArtwork(
    std::string_view line) {
  const std::optional<ArtworkDataSpan> span = locateArtworkData(line);
  if (!span) return std::nullopt;
  const std::string_view text = line.substr(span->begin, span->end - span->begin);
  if (text.size() >= artworkTextLimit) return std::nullopt;
  std::optional<Cover> decoded = decodeCover(text);
  if (!decoded) return std::nullopt;

  std::string rest;
  rest.reserve(line.size() - text.size());
  rest.append(line.substr(0, span->begin)).append(line.substr(span->end));
  AdapterEnvelope& envelope = scratch_.envelope;
  if (!readEnvelope(rest, envelope)) return Result(std::unexpect, ParseError::notJSONObject());
  JSONValue* placeholder = envelope.member("artworkData");
  if (!placeholder || *placeholder != JSONValue("")) {
    return std::nullopt;  // the scan and the reader disagree; trust the reader alone
  }
  *placeholder = JSONValue(text);
  if (decoded->size == 0) decoded.reset();
  return accept(envelope, std::move(decoded));
}

AdapterMessageParser::Result AdapterMessageParser::accept(AdapterEnvelope& envelope,
                                                          std::optional<Cover> decodedArtwork) {
  if (!envelope.typeIsString)
    return Result(std::unexpect, ParseError::unexpectedType(std::nullopt));
  if (envelope.type != "data") {
    return Result(std::unexpect, ParseError::unexpectedType(std::string(envelope.type)));
  }
  if (!envelope.payloadIsObject) return Result(std::unexpect, ParseError::missingPayload());

  ++messageCount_;
  const bool coverMentioned =
      envelope.member("artworkData") != nullptr || envelope.member("artworkURL") != nullptr;
  merge(envelope);
  if (!envelope.diff || coverMentioned) recomputeArtwork(std::move(decodedArtwork));
  return snapshot();
}

void AdapterMessageParser::merge(AdapterEnvelope& envelope) {
  // A diff on top of known fields updates them in place as it goes. Adding or removing a member
  // moves the others (the state is a flat vector), so from then on, and for anything else, the
  // fields are found again once at the end.
  bool follow = envelope.diff && scratch_.fieldsKnown;
  if (!envelope.diff) state_.clear();
  for (auto& [name, value] : envelope.payload) {
    if (JSONValue* known = follow && !value.isNull() ? scratch_.fields.find(name) : nullptr) {
      *known = std::move(value);
      continue;
    }
    auto existing = state_.find(name);
    if (existing == state_.end()) {
      if (envelope.diff && value.isNull()) continue;
      state_.emplace(name, std::move(value));
      follow = false;
    } else if (envelope.diff && value.isNull()) {
      state_.erase(existing);
      follow = false;
    } else {
      existing->second = std::move(value);
    }
  }
  if (!follow) scratch_.fields.rebuild(state_);
  scratch_.fieldsKnown = true;
}

// `decodedArtwork` is the already decoded value of the message's "artworkData", when the
// direct path decoded it; the state then holds the same text.
void AdapterMessageParser::recomputeArtwork(std::optional<Cover> decodedArtwork) {
  auto text = state_.find("artworkData");
  const std::string* cover = text == state_.end() ? nullptr : text->second.asString();
  std::optional<Cover> bytes;
  if (cover) bytes = decodedArtwork ? std::move(decodedArtwork) : decodeArtwork(*cover);
  if (bytes) {
    artwork_ = NowPlayingSnapshot::Artwork::embedded(std::move(bytes->data), bytes->size);
    return;
  }
  // Covers the adapter could not send as bytes come as an address, for the app to fetch or not.
  auto address = state_.find("artworkURL");
  const std::string* url = address == state_.end() ? nullptr : address->second.asString();
  artwork_ = url && !url->empty() && url->size() <= maxArtworkURLLength
                 ? std::optional(NowPlayingSnapshot::Artwork::remote(*url))
                 : std::nullopt;
}

// Built in place inside the result: a snapshot is large enough that every move shows.
AdapterMessageParser::Result AdapterMessageParser::snapshot() const {
  const AdapterStateFields& fields = scratch_.fields;
  const std::string* title = fields.title ? fields.title->asString() : nullptr;
  const bool* playing = fields.playing ? fields.playing->asBool() : nullptr;
  Result result(std::in_place);
  if (!title || title->empty() || !playing) return result;

  NowPlayingSnapshot& snapshot = result->emplace();
  copyNonEmptyString(fields.bundleIdentifier, snapshot.bundleIdentifier);
  copyNonEmptyString(fields.parentBundleIdentifier, snapshot.parentBundleIdentifier);
  if (const auto process = finiteNumber(fields.processIdentifier);
      process && *process >= 1 && *process <= maxProcessIdentifier &&
      std::trunc(*process) == *process) {
    snapshot.processIdentifier = static_cast<std::int64_t>(*process);
  }
  snapshot.title = *title;
  copyNonEmptyString(fields.artist, snapshot.artist);
  copyNonEmptyString(fields.album, snapshot.album);
  snapshot.isPlaying = *playing;
  if (auto duration = seconds(fields.durationMicros, fields.duration);
      duration && *duration > 0 && *duration <= maxSeconds) {
    snapshot.duration = duration;
  }
  if (auto elapsed = seconds(fields.elapsedTimeMicros, fields.elapsedTime);
      elapsed && *elapsed >= 0 && *elapsed <= maxSeconds) {
    snapshot.elapsed = elapsed;
    snapshot.elapsedTimestamp = timestampOf(fields);
  }
  const std::optional<double> rate = finiteNumber(fields.playbackRate);
  const double playingRate = rate && *rate >= 0 ? *rate : 1.0;
  snapshot.playbackRate = *playing ? playingRate : 0;
  if (auto code = finiteNumber(fields.shuffleMode)) {
    snapshot.shuffle = shuffleModeFromAdapterCode(*code);
  }
  if (auto code = finiteNumber(fields.repeatMode)) {
    snapshot.repeatMode = repeatModeFromAdapterCode(*code);
  }
  snapshot.artwork = artwork_;
  snapshot.capabilities = capabilitiesOf(fields.capabilities);
  return result;
}

}  // namespace tindra
