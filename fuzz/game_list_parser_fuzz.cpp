// Game list text and display selection text both come straight from the user's settings; a
// category string comes from whatever app is in front.
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <set>
#include <string>
#include <string_view>

#include "activity/display_selection.h"
#include "activity/game_list_parser.h"
#include "activity/visibility_policy.h"

namespace {

void check(bool condition) {
  if (!condition) std::abort();
}

// Checked independently of the parser's own validation.
bool looksLikeBundleIdentifier(std::string_view id) {
  if (id.empty() || id.size() > 255 || id.front() == '.' || id.back() == '.') return false;
  if (id.find("..") != std::string_view::npos || id.find('.') == std::string_view::npos) {
    return false;
  }
  for (unsigned char c : id) {
    if (!(std::isalnum(c) || c == '-' || c == '_' || c == '.') || c >= 0x80) return false;
  }
  return true;
}

std::string lowered(std::string_view id) {
  std::string result(id);
  for (char& c : result) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return result;
}

void checkGameList(std::string_view text) {
  const auto games = tindra::GameListParser::parse(text);
  check(games.size() <= 200);
  std::set<std::string> seen;
  std::size_t searchFrom = 0;
  for (const std::string& id : games) {
    check(looksLikeBundleIdentifier(id));
    check(seen.insert(lowered(id)).second);
    // Entries are pieces of the text, in its order.
    const std::size_t at = text.find(id, searchFrom);
    check(at != std::string_view::npos);
    searchFrom = at + id.size();
  }
}

void checkDisplaySelection(std::string_view text) {
  using tindra::DisplaySelection;
  const DisplaySelection selection = DisplaySelection::fromText(text);
  check(DisplaySelection::fromText(selection.text()) == selection);
  check((selection.kind() == DisplaySelection::Kind::named) != selection.name().empty());
  if (selection.kind() == DisplaySelection::Kind::named) check(selection.text() == text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  checkGameList(text);
  checkDisplaySelection(text);
  // Lower-casing arbitrary bytes (malformed UTF-8 included) must not trip the sanitizers.
  (void)tindra::VisibilityPolicy::isGamesCategory(text);
  return 0;
}
