// How Settings presents the keys on this desktop: the pages, by subsystem, and which keys each
// lists, in the key table's order (every key is on exactly one page; the Diagnostics page lists
// none, it holds the checks); the keys that mean nothing here; the words under some keys and the
// descriptions said in this desktop's terms; the ranges of number settings.
#pragma once

#include <QString>
#include <optional>
#include <string_view>
#include <vector>

namespace tindra {

struct SettingsPage {
  QString title;
  std::vector<std::string_view> keys;
};

std::vector<SettingsPage> settingsPages();
// The index of the page that lists `key`, or -1.
int settingsPageOf(std::string_view key);

// The description of `key` in this desktop's words where the key table's speaks of the Mac
// (marked for translation in "SettingsKeys"); nullptr where the table's own fits.
const char* settingsDescriptionHere(std::string_view key);

// Whether Settings leaves `key` out: it means nothing on this desktop, or it is state Tindra
// keeps for itself rather than a preference.
bool settingsHiddenHere(std::string_view key);

// Words Settings puts under a key on this desktop (marked for translation in "SettingsNotes"):
// what it does here, or, when `unavailable`, why it cannot work here.
struct SettingsNote {
  const char* text;
  bool unavailable;
};
std::optional<SettingsNote> settingsNoteHere(std::string_view key);

// The values a number setting's control offers; none where any value goes.
struct SettingsRange {
  double minimum;
  double maximum;
  double step;
};
std::optional<SettingsRange> settingsRangeOf(std::string_view key);

}  // namespace tindra
