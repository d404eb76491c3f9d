#include "shell/settings_pages.h"

#include <QCoreApplication>

namespace tindra {

const std::vector<SettingsPage>& settingsPages() {
  const auto tr = [](const char* text) { return QCoreApplication::translate("Settings", text); };
  static const std::vector<SettingsPage> pages{
      {tr("General"),
       {"onboardingCompleted", "playSounds", "showMenuBarIcon", "noticeDurationScale",
        "receiveBetaUpdates", "experimentalLockScreen", "lockScreenStyle", "lockWidgetOffset",
        "lockScreenNotch", "lockScreenNotice", "lockScreenNotchNotice"}},
      {tr("Notch"),
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
      {tr("Now Playing"),
       {"nowPlayingSourceMode", "nowPlayingFallbackNoticeOSVersion", "artworkOnlineLookup",
        "nowPlayingPausedLinger", "nowPlayingProgressTint", "liveWaveform"}},
      {tr("Indicator"),
       {"volumeHUDEnabled", "brightnessHUDEnabled", "hudBarStyle", "hudTint", "hudDuration",
        "volumeFeedbackFallback", "experimentalKeyboardBacklight", "keyboardBacklightMissingOn"}},
      {tr("Battery and Accessories"),
       {"batteryPluggedInNotice", "batteryUnpluggedNotice", "batteryLowAlert",
        "batteryLowThreshold", "accessoryConnectNotices", "accessoryLowAlert",
        "accessoryLowThreshold", "accessoryRouteNotice", "accessoryDisconnectNotice",
        "accessoryBatteryStyle"}},
      {tr("Calendar"),
       {"calendarEnabled", "calendarLeadMinutes", "calendarExcludedIdentifiers",
        "calendarTimeFormat", "calendarPrivacyMode", "calendarEventSound", "calendarEventSoundLog",
        "remindersEnabled", "travelTimeEnabled", "travelTransport", "travelBufferMinutes"}},
      {tr("Weather"), {"weatherEnabled"}},
      {tr("Focus and Banners"),
       {"focusShown", "focusKeepsIndicator", "focusFilterState", "experimentalCallNotices",
        "experimentalMessageNotices"}},
      {tr("File Tray"), {"experimentalFileTray", "fileTrayMode", "airDropNotices"}},
      {tr("Diagnostics"), {}},
  };
  return pages;
}

int settingsPageOf(std::string_view key) {
  const std::vector<SettingsPage>& pages = settingsPages();
  for (std::size_t page = 0; page < pages.size(); ++page) {
    for (const std::string_view listed : pages[page].keys) {
      if (listed == key) return static_cast<int>(page);
    }
  }
  return -1;
}

}  // namespace tindra
