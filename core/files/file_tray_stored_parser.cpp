#include "files/file_tray_stored_parser.h"

#include <cmath>
#include <optional>
#include <set>
#include <utility>

#include "base/hex_digit.h"
#include "base/json_reader.h"
#include "base/json_writer.h"

namespace tindra {

namespace {

// Integers up to 2^53 survive the trip through a JSON number (a double) exactly.
constexpr double largestExactInteger = 9'007'199'254'740'992.0;

std::string hexText(const std::vector<std::uint8_t>& bytes) {
  static constexpr std::string_view digits = "0123456789abcdef";
  std::string text;
  text.reserve(bytes.size() * 2);
  for (std::uint8_t byte : bytes) {
    text.push_back(digits[byte >> 4]);
    text.push_back(digits[byte & 0xF]);
  }
  return text;
}

std::optional<std::vector<std::uint8_t>> bytesFromHex(std::string_view text) {
  if (text.size() % 2 != 0 || text.size() > 2 * FileTray::largestBookmark) return std::nullopt;
  std::vector<std::uint8_t> bytes;
  bytes.reserve(text.size() / 2);
  for (std::size_t i = 0; i < text.size(); i += 2) {
    const int high = hexDigitValue(text[i]);
    const int low = hexDigitValue(text[i + 1]);
    if (high < 0 || low < 0) return std::nullopt;
    bytes.push_back(static_cast<std::uint8_t>(high << 4 | low));
  }
  return bytes;
}

// Reads one member into `out`; false when it is missing or of the wrong type. Optional members
// accept absence and null.
class MemberReader {
 public:
  explicit MemberReader(const JSONValue& object) : object_(object) {}

  bool string(std::string_view name, std::string& out) const {
    const JSONValue* value = object_.find(name);
    if (value == nullptr || value->asString() == nullptr) return false;
    out = *value->asString();
    return true;
  }

  bool optionalString(std::string_view name, std::optional<std::string>& out) const {
    const JSONValue* value = object_.find(name);
    if (value == nullptr || value->isNull()) return true;
    if (value->asString() == nullptr) return false;
    out = *value->asString();
    return true;
  }

  bool boolean(std::string_view name, bool& out) const {
    const JSONValue* value = object_.find(name);
    if (value == nullptr || value->asBool() == nullptr) return false;
    out = *value->asBool();
    return true;
  }

  bool finiteNumber(std::string_view name, double& out) const {
    const JSONValue* value = object_.find(name);
    if (value == nullptr || value->asNumber() == nullptr || !std::isfinite(*value->asNumber())) {
      return false;
    }
    out = *value->asNumber();
    return true;
  }

  bool optionalInteger(std::string_view name, std::optional<std::int64_t>& out) const {
    const JSONValue* value = object_.find(name);
    if (value == nullptr || value->isNull()) return true;
    const double* number = value->asNumber();
    if (number == nullptr || std::trunc(*number) != *number ||
        std::fabs(*number) > largestExactInteger) {
      return false;
    }
    out = static_cast<std::int64_t>(*number);
    return true;
  }

 private:
  const JSONValue& object_;
};

std::optional<FileTrayItem> decodeItem(const JSONValue& value) {
  if (value.asObject() == nullptr) return std::nullopt;
  const MemberReader member(value);
  FileTrayItem item;
  std::string idText;
  std::string bookmarkText;
  if (!member.string("id", idText) || !member.string("bookmark", bookmarkText) ||
      !member.boolean("isSecurityScoped", item.isSecurityScoped) ||
      !member.string("displayName", item.displayName) || !member.string("path", item.path) ||
      !member.optionalString("contentType", item.contentType) ||
      !member.finiteNumber("addedAt", item.addedAt) ||
      !member.optionalInteger("copiedBytes", item.copiedBytes) ||
      !member.optionalString("sourcePath", item.sourcePath)) {
    return std::nullopt;
  }
  std::optional<UUID> id = UUID::fromText(idText);
  std::optional<std::vector<std::uint8_t>> bookmark = bytesFromHex(bookmarkText);
  if (!id || !bookmark) return std::nullopt;
  item.id = *id;
  item.bookmark = *std::move(bookmark);
  // A stored item must be one the tray could have admitted: a hand-edited relative path or a
  // half-copy is dropped rather than trusted.
  const FileTrayCandidate asDropped{item.bookmark,  item.isSecurityScoped, item.displayName,
                                    item.path,      item.contentType,      item.copiedBytes,
                                    item.sourcePath};
  if (FileTray::isInvalid(asDropped)) return std::nullopt;
  return item;
}

JSONValue encodeItem(const FileTrayItem& item) {
  JSONValue::Object object{
      {"id", item.id.text()},
      {"bookmark", hexText(item.bookmark)},
      {"isSecurityScoped", item.isSecurityScoped},
      {"displayName", item.displayName},
      {"path", item.path},
      {"addedAt", item.addedAt},
  };
  if (item.contentType) object.emplace("contentType", *item.contentType);
  if (item.copiedBytes) object.emplace("copiedBytes", static_cast<double>(*item.copiedBytes));
  if (item.sourcePath) object.emplace("sourcePath", *item.sourcePath);
  return object;
}

using ParseError = FileTrayStoredParser::ParseError;

std::expected<int, ParseError> readVersion(const JSONValue& document) {
  const JSONValue* value = document.find("version");
  const double* number = value != nullptr ? value->asNumber() : nullptr;
  if (number == nullptr || std::trunc(*number) != *number || *number < 1) {
    return std::unexpected(ParseError{ParseError::Code::notATray});
  }
  if (*number > FileTray::Stored::currentVersion) {
    const double clamped = std::fmin(*number, largestExactInteger);
    return std::unexpected(
        ParseError{ParseError::Code::newerVersion, static_cast<std::int64_t>(clamped)});
  }
  return static_cast<int>(*number);
}

}  // namespace

std::expected<FileTrayStoredParser::Parsed, ParseError> FileTrayStoredParser::parse(
    std::string_view text) {
  std::expected<JSONValue, JSONParseError> document = JSONReader::parse(text);
  if (!document) return std::unexpected(ParseError{ParseError::Code::notJSON});
  if (document->asObject() == nullptr)
    return std::unexpected(ParseError{ParseError::Code::notATray});
  std::expected<int, ParseError> version = readVersion(*document);
  if (!version) return std::unexpected(version.error());
  const JSONValue* items = document->find("items");
  if (items == nullptr || items->asArray() == nullptr) {
    return std::unexpected(ParseError{ParseError::Code::notATray});
  }

  Parsed parsed;
  parsed.stored.version = *version;
  std::set<UUID> ids;
  for (const JSONValue& value : *items->asArray()) {
    std::optional<FileTrayItem> item = decodeItem(value);
    // A repeated id would make removal by id ambiguous; the first one wins.
    if (!item || !ids.insert(item->id).second) {
      ++parsed.skippedItems;
      continue;
    }
    parsed.stored.items.push_back(*std::move(item));
  }
  return parsed;
}

std::string FileTrayStoredParser::write(const FileTray::Stored& stored) {
  JSONValue::Array items;
  items.reserve(stored.items.size());
  for (const FileTrayItem& item : stored.items) items.push_back(encodeItem(item));
  return JSONWriter::writePretty(
      JSONValue::Object{{"version", stored.version}, {"items", std::move(items)}});
}

}  // namespace tindra
