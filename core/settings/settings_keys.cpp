#include "settings/settings_keys.h"

#include <algorithm>

namespace tindra::settings {
namespace {

using Type = SettingsKeyDescription::Type;

template <class T>
Type typeOf(const SettingsKey<T>& key) {
  if constexpr (std::is_same_v<T, bool>) return Type::boolean;
  if constexpr (std::is_same_v<T, std::int64_t>) return Type::integer;
  if constexpr (std::is_same_v<T, double>) return Type::number;
  if constexpr (std::is_same_v<T, std::string>) {
    return key.cases.empty() ? Type::string : Type::enumeration;
  }
  if constexpr (std::is_same_v<T, std::optional<std::string>>) return Type::optionalString;
  if constexpr (std::is_same_v<T, std::vector<std::string>>) return Type::list;
  if constexpr (std::is_same_v<T, JSONValue::Object>) return Type::dictionary;
}

template <class T>
SettingsKeyDescription describe(const SettingsKey<T>& key) {
  return {key.name, typeOf(key), SettingsCodec<T>::encode(key.defaultValue), key.cases};
}

}  // namespace

const std::vector<SettingsKeyDescription>& allKeys() {
  static const std::vector<SettingsKeyDescription> keys{
      describe(settings::onboardingCompleted),
      describe(settings::playSounds),
      describe(settings::showMenuBarIcon),
      describe(settings::noticeDurationScale),
      describe(settings::receiveBetaUpdates),
      describe(settings::showOnDisplaysWithoutNotch),
      describe(settings::displaySelection),
      describe(settings::simulatedNotchWidth),
      describe(settings::simulatedNotchMatchesMenuBar),
      describe(settings::simulatedNotchHeight),
      describe(settings::notchOpeningMode),
      describe(settings::hoverOpenDelay),
      describe(settings::holdOpenDuration),
      describe(settings::pinnedWidgets),
      describe(settings::nowPlayingSourceMode),
      describe(settings::nowPlayingFallbackNoticeOSVersion),
      describe(settings::artworkOnlineLookup),
      describe(settings::nowPlayingPausedLinger),
      describe(settings::nowPlayingProgressTint),
      describe(settings::volumeHUDEnabled),
      describe(settings::brightnessHUDEnabled),
      describe(settings::hudBarStyle),
      describe(settings::hudTint),
      describe(settings::hudDuration),
      describe(settings::volumeFeedbackFallback),
      describe(settings::batteryPluggedInNotice),
      describe(settings::batteryUnpluggedNotice),
      describe(settings::batteryLowAlert),
      describe(settings::batteryLowThreshold),
      describe(settings::accessoryConnectNotices),
      describe(settings::airDropNotices),
      describe(settings::accessoryLowAlert),
      describe(settings::accessoryLowThreshold),
      describe(settings::accessoryRouteNotice),
      describe(settings::accessoryDisconnectNotice),
      describe(settings::accessoryBatteryStyle),
      describe(settings::calendarEnabled),
      describe(settings::calendarLeadMinutes),
      describe(settings::calendarExcludedIdentifiers),
      describe(settings::calendarTimeFormat),
      describe(settings::calendarPrivacyMode),
      describe(settings::calendarEventSound),
      describe(settings::calendarEventSoundLog),
      describe(settings::remindersEnabled),
      describe(settings::travelTimeEnabled),
      describe(settings::travelTransport),
      describe(settings::travelBufferMinutes),
      describe(settings::weatherEnabled),
      describe(settings::focusShown),
      describe(settings::focusKeepsIndicator),
      describe(settings::focusFilterState),
      describe(settings::swipeGestures),
      describe(settings::swipeChangesTrack),
      describe(settings::swipeFeedback),
      describe(settings::mouseDragGestures),
      describe(settings::hideInFullScreen),
      describe(settings::hideForGames),
      describe(settings::gameBundleIdentifiers),
      describe(settings::hideDuringMissionControl),
      describe(settings::hideFromScreenRecordings),
      describe(settings::glassBackground),
      describe(settings::notchColorStyle),
      describe(settings::auraGlowWhenOpen),
      describe(settings::auraFlashOnOpen),
      describe(settings::auraColorfulBars),
      describe(settings::auraRimWhenClosed),
      describe(settings::liveWaveform),
      describe(settings::experimentalLockScreen),
      describe(settings::lockScreenStyle),
      describe(settings::lockWidgetOffset),
      describe(settings::lockScreenNotch),
      describe(settings::lockScreenNotice),
      describe(settings::lockScreenNotchNotice),
      describe(settings::experimentalKeyboardBacklight),
      describe(settings::keyboardBacklightMissingOn),
      describe(settings::experimentalCallNotices),
      describe(settings::experimentalMessageNotices),
      describe(settings::experimentalFileTray),
      describe(settings::fileTrayMode),
  };
  return keys;
}

const SettingsKeyDescription* describeKey(std::string_view name) {
  const auto& keys = allKeys();
  auto it = std::find_if(keys.begin(), keys.end(),
                         [name](const SettingsKeyDescription& key) { return key.name == name; });
  return it == keys.end() ? nullptr : &*it;
}

}  // namespace tindra::settings
