#include "shell/settings_pages.h"

#include <QCoreApplication>
#include <map>
#include <set>

#include "lockscreen/lock_widget_offset.h"
#include "power/battery_threshold.h"

namespace tindra {

namespace {

struct Page {
  const char* title;  // untranslated
  std::vector<std::string_view> keys;
};

const std::vector<Page>& pageTable() {
  static const std::vector<Page> pages{
      {QT_TRANSLATE_NOOP("Settings", "General"),
       {"onboardingCompleted", "playSounds", "showMenuBarIcon", "noticeDurationScale",
        "receiveBetaUpdates", "experimentalLockScreen", "lockScreenStyle", "lockWidgetOffset",
        "lockScreenNotch", "lockScreenNotice", "lockScreenNotchNotice"}},
      {QT_TRANSLATE_NOOP("Settings", "Notch"),
       {"showOnDisplaysWithoutNotch",
        "displaySelection",
        "simulatedNotchWidth",
        "simulatedNotchMatchesMenuBar",
        "simulatedNotchHeight",
        "notchOpeningMode",
        "hoverOpenDelay",
        "holdOpenDuration",
        "pinnedWidgets",
        "swipeGestures",
        "swipeChangesTrack",
        "swipeFeedback",
        "mouseDragGestures",
        "hideInFullScreen",
        "hideForGames",
        "gameBundleIdentifiers",
        "hideDuringMissionControl",
        "hideFromScreenRecordings",
        "glassBackground",
        "notchColorStyle",
        "auraGlowWhenOpen",
        "auraFlashOnOpen",
        "auraColorfulBars",
        "auraRimWhenClosed"}},
      {QT_TRANSLATE_NOOP("Settings", "Now Playing"),
       {"nowPlayingSourceMode", "nowPlayingFallbackNoticeOSVersion", "artworkOnlineLookup",
        "nowPlayingPausedLinger", "nowPlayingProgressTint", "liveWaveform"}},
      {QT_TRANSLATE_NOOP("Settings", "Indicator"),
       {"volumeHUDEnabled", "brightnessHUDEnabled", "hudBarStyle", "hudTint", "hudDuration",
        "volumeFeedbackFallback", "experimentalKeyboardBacklight", "keyboardBacklightMissingOn"}},
      {QT_TRANSLATE_NOOP("Settings", "Battery and Accessories"),
       {"batteryPluggedInNotice", "batteryUnpluggedNotice", "batteryLowAlert",
        "batteryLowThreshold", "accessoryConnectNotices", "accessoryLowAlert",
        "accessoryLowThreshold", "accessoryRouteNotice", "accessoryDisconnectNotice",
        "accessoryBatteryStyle"}},
      {QT_TRANSLATE_NOOP("Settings", "Calendar"),
       {"calendarEnabled", "calendarLeadMinutes", "calendarExcludedIdentifiers",
        "calendarTimeFormat", "calendarPrivacyMode", "calendarEventSound", "calendarEventSoundLog",
        "remindersEnabled", "travelTimeEnabled", "travelTransport", "travelBufferMinutes"}},
      {QT_TRANSLATE_NOOP("Settings", "Weather"), {"weatherEnabled"}},
      {QT_TRANSLATE_NOOP("Settings", "Focus and Banners"),
       {"focusShown", "focusKeepsIndicator", "focusFilterState", "experimentalCallNotices",
        "experimentalMessageNotices"}},
      {QT_TRANSLATE_NOOP("Settings", "File Tray"),
       {"experimentalFileTray", "fileTrayMode", "airDropNotices"}},
      {QT_TRANSLATE_NOOP("Settings", "Diagnostics"), {}},
  };
  return pages;
}

}  // namespace

// Titles are translated on every call, so a language chosen later applies.
std::vector<SettingsPage> settingsPages() {
  std::vector<SettingsPage> pages;
  for (const Page& page : pageTable()) {
    pages.push_back({QCoreApplication::translate("Settings", page.title), page.keys});
  }
  return pages;
}

const char* settingsDescriptionHere(std::string_view key) {
  static const std::map<std::string_view, const char*, std::less<>> here{
      {"nowPlayingSourceMode",
       QT_TRANSLATE_NOOP("SettingsKeys",
                         "Where the playing track comes from: automatic (the desktop's players), "
                         "or only the player scripts of a Mac, which show nothing here.")},
      {"volumeHUDEnabled",
       QT_TRANSLATE_NOOP("SettingsKeys",
                         "Show volume changes in the notch. Alt-Shift with a volume or brightness "
                         "key changes it in smaller steps.")},
      {"brightnessHUDEnabled",
       QT_TRANSLATE_NOOP("SettingsKeys",
                         "Show brightness changes in the notch. Keys go to the desktop when the "
                         "output or display cannot be controlled.")},
      {"volumeFeedbackFallback",
       QT_TRANSLATE_NOOP("SettingsKeys",
                         "Play the volume feedback sound on a desktop without a setting of its "
                         "own for it (GNOME's event sounds and Plasma's audio feedback decide "
                         "there). Hold Shift while pressing a volume key to do the opposite.")},
      {"focusFilterState",
       QT_TRANSLATE_NOOP("SettingsKeys",
                         "The Focus filter's last state, as `tindra focus` wrote it.")},
      {"pinnedWidgets",
       QT_TRANSLATE_NOOP("SettingsKeys",
                         "Sections pinned in the opened notch: tick them and drag them into "
                         "order. With none ticked, every section with something to show appears.")},
  };
  const auto found = here.find(key);
  return found == here.end() ? nullptr : found->second;
}

bool settingsHiddenHere(std::string_view key) {
  // Nothing draws above a Linux screen locker, so the lock-screen details are not offered. This
  // desktop has no Mission Control and no AirDrop, its package manager updates Tindra, no record
  // of system versions is kept here, X11 lets every program read the screen, so no window can
  // keep out of recordings, and touchpads here give no haptic feedback.
  static const std::set<std::string_view, std::less<>> hidden{"lockWidgetOffset",
                                                              "hideDuringMissionControl",
                                                              "airDropNotices",
                                                              "receiveBetaUpdates",
                                                              "nowPlayingFallbackNoticeOSVersion",
                                                              "keyboardBacklightMissingOn",
                                                              "hideFromScreenRecordings",
                                                              "swipeFeedback"};
  // What Tindra keeps for itself is no preference: whether the introduction was seen, which
  // events have sounded, the Focus filter's state as `tindra focus` left it. It stays in the
  // settings file and the diagnostics report.
  static const std::set<std::string_view, std::less<>> ownState{
      "onboardingCompleted", "calendarEventSoundLog", "focusFilterState"};
  return key.starts_with("lockScreen") || hidden.contains(key) || ownState.contains(key);
}

std::optional<SettingsNote> settingsNoteHere(std::string_view key) {
  static const std::map<std::string_view, SettingsNote, std::less<>> notes{
      {"experimentalLockScreen",
       {QT_TRANSLATE_NOOP("SettingsNotes",
                          "No window can be drawn above the screen locker of a Linux desktop, so "
                          "there are no lock-screen widgets here; the notch hides while the "
                          "screen is locked."),
        true}},
      {"experimentalKeyboardBacklight",
       {QT_TRANSLATE_NOOP("SettingsNotes",
                          "If this computer ignores Tindra's changes, the keys go back to the "
                          "desktop and the notch only shows the level."),
        false}},
      {"batteryLowThreshold",
       {QT_TRANSLATE_NOOP("SettingsNotes",
                          "The warning appears once when the battery reaches this level, and "
                          "again only after charging."),
        false}},
      {"experimentalFileTray",
       {QT_TRANSLATE_NOOP("SettingsNotes", "Up to 20 items. Copies take up to 2 GB in total."),
        false}},
      {"fileTrayMode",
       {QT_TRANSLATE_NOOP("SettingsNotes",
                          "Links: Tindra remembers where they are; nothing is copied. Copies: "
                          "Tindra keeps a copy, so they stay usable if the originals go; removing "
                          "it from the tray deletes the copy, never the original."),
        false}},
      {"experimentalCallNotices",
       {QT_TRANSLATE_NOOP("SettingsNotes",
                          "A ringing call shows only that it rings; answer it on the desktop's "
                          "notification. Messages and missed calls show who and what, with a "
                          "button that opens the application that sent them. Nothing is stored or "
                          "sent, and nothing shows while do-not-disturb is on."),
        false}},
      {"swipeGestures",
       {QT_TRANSLATE_NOOP("SettingsNotes",
                          "Scroll on the notch with two fingers or the mouse wheel, as if moving a "
                          "page: down opens it, up closes it, sideways skips tracks."),
        false}},
      {"mouseDragGestures",
       {QT_TRANSLATE_NOOP("SettingsNotes",
                          "Drag the closed notch down to open it, or sideways to skip tracks; "
                          "drag the opened one up from an empty spot to close it."),
        false}},
      {"glassBackground",
       {QT_TRANSLATE_NOOP("SettingsNotes",
                          "The desktop shows through where the window manager draws windows "
                          "translucent; elsewhere the glass is dark grey."),
        false}},
  };
  const auto found = notes.find(key);
  return found == notes.end() ? std::nullopt : std::optional(found->second);
}

std::optional<SettingsRange> settingsRangeOf(std::string_view key) {
  // The core clamps the thresholds and the lock-widget offset to these; the rest are what makes
  // sense on a screen and a clock.
  static const std::map<std::string_view, SettingsRange, std::less<>> ranges{
      {"batteryLowThreshold", {BatteryThreshold::minimum, BatteryThreshold::maximum, 1}},
      {"accessoryLowThreshold", {BatteryThreshold::minimum, BatteryThreshold::maximum, 1}},
      {"simulatedNotchWidth", {100, 400, 5}},
      {"simulatedNotchHeight", {20, 60, 1}},
      {"hoverOpenDelay", {0, 2, 0.05}},
      {"holdOpenDuration", {0.1, 3, 0.05}},
      {"hudDuration", {0.5, 10, 0.25}},
      {"calendarLeadMinutes", {1, 120, 1}},
      {"travelBufferMinutes", {0, 120, 1}},
      {"lockWidgetOffset", {-maxLockWidgetOffset, maxLockWidgetOffset, 1}},
  };
  const auto found = ranges.find(key);
  return found == ranges.end() ? std::nullopt : std::optional(found->second);
}

int settingsPageOf(std::string_view key) {
  const std::vector<Page>& pages = pageTable();
  for (std::size_t page = 0; page < pages.size(); ++page) {
    for (const std::string_view listed : pages[page].keys) {
      if (listed == key) return static_cast<int>(page);
    }
  }
  return -1;
}

}  // namespace tindra
