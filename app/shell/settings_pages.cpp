#include "shell/settings_pages.h"

#include <QCoreApplication>
#include <map>

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
                         "Play the volume feedback sound where the desktop does not. Hold Shift "
                         "while pressing a volume key to do the opposite.")},
      {"focusFilterState",
       QT_TRANSLATE_NOOP("SettingsKeys",
                         "The Focus filter's last state, as `tindra focus` wrote it.")},
  };
  const auto found = here.find(key);
  return found == here.end() ? nullptr : found->second;
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
