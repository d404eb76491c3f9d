#include "focus/focus_filter_state.h"

#include <unicode/brkiter.h>
#include <unicode/locid.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <memory>
#include <utility>

#include "base/json_reader.h"
#include "base/json_writer.h"
#include "base/line_break.h"

namespace tindra {

namespace {

std::string lineBreaksAsSpaces(std::string_view text) {
  std::string joined;
  joined.reserve(text.size());
  std::size_t from = 0;
  while (const std::optional<LineBreak> lineBreak = findLineBreak(text, from)) {
    joined.append(text.substr(from, lineBreak->offset - from));
    joined.push_back(' ');
    from = lineBreak->offset + lineBreak->length;
  }
  joined.append(text.substr(from));
  return joined;
}

icu::UnicodeString trimmedWhiteSpace(const icu::UnicodeString& text) {
  int32_t start = 0;
  int32_t end = text.length();
  while (start < end && u_isUWhiteSpace(text.char32At(start))) start = text.moveIndex32(start, 1);
  while (end > start && u_isUWhiteSpace(text.char32At(text.moveIndex32(end, -1)))) {
    end = text.moveIndex32(end, -1);
  }
  return icu::UnicodeString(text, start, end - start);
}

// The first `count` grapheme clusters of `text`, or all of it when it has no more.
icu::UnicodeString firstGraphemes(const icu::UnicodeString& text, std::size_t count) {
  // Every cluster has at least one UTF-16 unit, so short text needs no break iterator.
  if (static_cast<std::size_t>(text.length()) <= count) return text;
  UErrorCode status = U_ZERO_ERROR;
  std::unique_ptr<icu::BreakIterator> clusters(
      icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
  if (U_FAILURE(status)) return icu::UnicodeString(text, 0, static_cast<int32_t>(count));
  clusters->setText(text);
  int32_t end = clusters->first();
  for (std::size_t taken = 0; taken < count; ++taken) {
    const int32_t next = clusters->next();
    if (next == icu::BreakIterator::DONE) return text;
    end = next;
  }
  return icu::UnicodeString(text, 0, end);
}

std::optional<FocusFilterState> decodedState(std::string_view text) {
  const auto json = JSONReader::parse(text);
  if (!json) return std::nullopt;
  const JSONValue* isActive = json->find("isActive");
  const JSONValue* name = json->find("name");
  const JSONValue* symbol = json->find("symbol");
  const JSONValue* updatedAt = json->find("updatedAt");
  if (!isActive || !isActive->asBool() || !name || !name->asString() || !symbol ||
      !symbol->asString() || !updatedAt || !updatedAt->asNumber()) {
    return std::nullopt;
  }
  const std::optional<FocusSymbol> knownSymbol = enumFromRaw<FocusSymbol>(*symbol->asString());
  if (!knownSymbol) return std::nullopt;
  return FocusFilterState(*isActive->asBool(), *name->asString(), *knownSymbol,
                          *updatedAt->asNumber());
}

}  // namespace

FocusFilterState::FocusFilterState(bool isActive, std::optional<std::string_view> name,
                                   FocusSymbol symbol, double updatedAt)
    : isActive(isActive),
      name(name ? normalizedName(*name) : std::string()),
      symbol(symbol),
      updatedAt(updatedAt) {}

std::string FocusFilterState::normalizedName(std::string_view name) {
  const std::string joined = lineBreaksAsSpaces(name);
  const icu::UnicodeString text = icu::UnicodeString::fromUTF8(
      icu::StringPiece(joined.data(), static_cast<int32_t>(joined.size())));
  // Trimmed first, then cut: a space that lands at the end of the forty stays.
  std::string result;
  firstGraphemes(trimmedWhiteSpace(text), maxNameLength).toUTF8String(result);
  return result;
}

std::string FocusFilterState::encoded() const {
  return JSONWriter::write(JSONValue(JSONValue::Object{
      {"isActive", isActive},
      {"name", name},
      {"symbol", rawValue(symbol)},
      {"updatedAt", updatedAt},
  }));
}

FocusFilterState FocusFilterState::decode(std::optional<std::string_view> text) {
  if (!text) return inactive();
  return decodedState(*text).value_or(inactive());
}

}  // namespace tindra
