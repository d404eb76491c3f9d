// Every preference Tindra keeps, as a typed key with its name and default, in the order of
// declaration. Enumeration keys hold raw strings; an unknown stored string reads as the default.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/json_value.h"
#include "settings/settings_key.h"

namespace tindra::settings {

// The raw values of the enumeration keys. notchColorStyle's cases belong to the opened-notch
// layout; the others mirror their subsystems' enumerations.
inline constexpr std::array<std::string_view, 3> noticeDurationScaleCases{"short", "medium",
                                                                          "long"};
inline constexpr std::array<std::string_view, 3> notchOpeningModeCases{"hover", "click",
                                                                       "pressAndHold"};
inline constexpr std::array<std::string_view, 2> nowPlayingSourceModeCases{"automatic",
                                                                           "appleScriptOnly"};
inline constexpr std::array<std::string_view, 3> nowPlayingPausedLingerCases{"short", "long",
                                                                             "untilResumed"};
inline constexpr std::array<std::string_view, 2> nowPlayingProgressTintCases{"standard", "artwork"};
inline constexpr std::array<std::string_view, 3> hudBarStyleCases{"continuous", "segmented",
                                                                  "ring"};
inline constexpr std::array<std::string_view, 3> hudTintCases{"white", "level", "accent"};
inline constexpr std::array<std::string_view, 2> accessoryBatteryStyleCases{"percentage", "ring"};
inline constexpr std::array<std::string_view, 3> calendarTimeFormatCases{"countdown", "startTime",
                                                                         "both"};
inline constexpr std::array<std::string_view, 3> travelTransportCases{"automobile", "walking",
                                                                      "transit"};
inline constexpr std::array<std::string_view, 2> notchColorStyleCases{"monochrome", "colorful"};
inline constexpr std::array<std::string_view, 3> lockScreenStyleCases{"clear", "lightFrost",
                                                                      "frosted"};
inline constexpr std::array<std::string_view, 2> fileTrayModeCases{"link", "copy"};

inline const SettingsKey<bool> onboardingCompleted{"onboardingCompleted", false};
inline const SettingsKey<bool> playSounds{"playSounds", true};
inline const SettingsKey<bool> showMenuBarIcon{"showMenuBarIcon", true};
inline const SettingsKey<std::string> noticeDurationScale{"noticeDurationScale", "medium",
                                                          noticeDurationScaleCases};
inline const SettingsKey<bool> receiveBetaUpdates{"receiveBetaUpdates", false};
inline const SettingsKey<bool> showOnDisplaysWithoutNotch{"showOnDisplaysWithoutNotch", true};
inline const SettingsKey<std::string> displaySelection{"displaySelection", "all"};
inline const SettingsKey<double> simulatedNotchWidth{"simulatedNotchWidth", 190.0};
inline const SettingsKey<bool> simulatedNotchMatchesMenuBar{"simulatedNotchMatchesMenuBar", true};
inline const SettingsKey<double> simulatedNotchHeight{"simulatedNotchHeight", 32.0};
inline const SettingsKey<std::string> notchOpeningMode{"notchOpeningMode", "hover",
                                                       notchOpeningModeCases};
inline const SettingsKey<double> hoverOpenDelay{"hoverOpenDelay", 0.12};
inline const SettingsKey<double> holdOpenDuration{"holdOpenDuration", 0.5};
inline const SettingsKey<std::vector<std::string>> pinnedWidgets{"pinnedWidgets", {}};
inline const SettingsKey<std::string> nowPlayingSourceMode{"nowPlayingSourceMode", "automatic",
                                                           nowPlayingSourceModeCases};
inline const SettingsKey<std::optional<std::string>> nowPlayingFallbackNoticeOSVersion{
    "nowPlayingFallbackNoticeOSVersion", {}};
inline const SettingsKey<bool> artworkOnlineLookup{"artworkOnlineLookup", true};
inline const SettingsKey<std::string> nowPlayingPausedLinger{"nowPlayingPausedLinger", "short",
                                                             nowPlayingPausedLingerCases};
inline const SettingsKey<std::string> nowPlayingProgressTint{"nowPlayingProgressTint", "standard",
                                                             nowPlayingProgressTintCases};
inline const SettingsKey<bool> volumeHUDEnabled{"volumeHUDEnabled", true};
inline const SettingsKey<bool> brightnessHUDEnabled{"brightnessHUDEnabled", true};
inline const SettingsKey<std::string> hudBarStyle{"hudBarStyle", "continuous", hudBarStyleCases};
inline const SettingsKey<std::string> hudTint{"hudTint", "white", hudTintCases};
inline const SettingsKey<double> hudDuration{"hudDuration", 1.5};
inline const SettingsKey<bool> volumeFeedbackFallback{"volumeFeedbackFallback", false};
inline const SettingsKey<bool> batteryPluggedInNotice{"batteryPluggedInNotice", true};
inline const SettingsKey<bool> batteryUnpluggedNotice{"batteryUnpluggedNotice", true};
inline const SettingsKey<bool> batteryLowAlert{"batteryLowAlert", true};
inline const SettingsKey<std::int64_t> batteryLowThreshold{"batteryLowThreshold", 20};
inline const SettingsKey<bool> accessoryConnectNotices{"accessoryConnectNotices", true};
inline const SettingsKey<bool> airDropNotices{"airDropNotices", false};
inline const SettingsKey<bool> accessoryLowAlert{"accessoryLowAlert", true};
inline const SettingsKey<std::int64_t> accessoryLowThreshold{"accessoryLowThreshold", 20};
inline const SettingsKey<bool> accessoryRouteNotice{"accessoryRouteNotice", true};
inline const SettingsKey<bool> accessoryDisconnectNotice{"accessoryDisconnectNotice", true};
inline const SettingsKey<std::string> accessoryBatteryStyle{"accessoryBatteryStyle", "percentage",
                                                            accessoryBatteryStyleCases};
inline const SettingsKey<bool> calendarEnabled{"calendarEnabled", false};
inline const SettingsKey<std::int64_t> calendarLeadMinutes{"calendarLeadMinutes", 10};
inline const SettingsKey<std::vector<std::string>> calendarExcludedIdentifiers{
    "calendarExcludedIdentifiers", {}};
inline const SettingsKey<std::string> calendarTimeFormat{"calendarTimeFormat", "countdown",
                                                         calendarTimeFormatCases};
inline const SettingsKey<bool> calendarPrivacyMode{"calendarPrivacyMode", false};
inline const SettingsKey<bool> calendarEventSound{"calendarEventSound", false};
inline const SettingsKey<JSONValue::Object> calendarEventSoundLog{"calendarEventSoundLog", {}};
inline const SettingsKey<bool> remindersEnabled{"remindersEnabled", false};
inline const SettingsKey<bool> travelTimeEnabled{"travelTimeEnabled", false};
inline const SettingsKey<std::string> travelTransport{"travelTransport", "automobile",
                                                      travelTransportCases};
inline const SettingsKey<std::int64_t> travelBufferMinutes{"travelBufferMinutes", 5};
inline const SettingsKey<bool> weatherEnabled{"weatherEnabled", false};
inline const SettingsKey<bool> focusShown{"focusShown", true};
inline const SettingsKey<bool> focusKeepsIndicator{"focusKeepsIndicator", true};
inline const SettingsKey<std::string> focusFilterState{"focusFilterState", ""};
inline const SettingsKey<bool> swipeGestures{"swipeGestures", true};
inline const SettingsKey<bool> swipeChangesTrack{"swipeChangesTrack", true};
inline const SettingsKey<bool> swipeFeedback{"swipeFeedback", false};
inline const SettingsKey<bool> mouseDragGestures{"mouseDragGestures", false};
inline const SettingsKey<bool> hideInFullScreen{"hideInFullScreen", true};
inline const SettingsKey<bool> hideForGames{"hideForGames", true};
inline const SettingsKey<std::string> gameBundleIdentifiers{"gameBundleIdentifiers", ""};
inline const SettingsKey<bool> hideDuringMissionControl{"hideDuringMissionControl", false};
inline const SettingsKey<bool> hideFromScreenRecordings{"hideFromScreenRecordings", false};
inline const SettingsKey<bool> glassBackground{"glassBackground", false};
inline const SettingsKey<std::string> notchColorStyle{"notchColorStyle", "monochrome",
                                                      notchColorStyleCases};
inline const SettingsKey<bool> auraGlowWhenOpen{"auraGlowWhenOpen", true};
inline const SettingsKey<bool> auraFlashOnOpen{"auraFlashOnOpen", true};
inline const SettingsKey<bool> auraColorfulBars{"auraColorfulBars", true};
inline const SettingsKey<bool> auraRimWhenClosed{"auraRimWhenClosed", true};
inline const SettingsKey<bool> liveWaveform{"liveWaveform", false};
inline const SettingsKey<bool> experimentalLockScreen{"experimentalLockScreen", false};
inline const SettingsKey<std::string> lockScreenStyle{"lockScreenStyle", "frosted",
                                                      lockScreenStyleCases};
inline const SettingsKey<double> lockWidgetOffset{"lockWidgetOffset", 0.0};
inline const SettingsKey<bool> lockScreenNotch{"lockScreenNotch", false};
inline const SettingsKey<std::string> lockScreenNotice{"lockScreenNotice", ""};
inline const SettingsKey<std::string> lockScreenNotchNotice{"lockScreenNotchNotice", ""};
inline const SettingsKey<bool> experimentalKeyboardBacklight{"experimentalKeyboardBacklight",
                                                             false};
inline const SettingsKey<std::string> keyboardBacklightMissingOn{"keyboardBacklightMissingOn", ""};
inline const SettingsKey<bool> experimentalCallNotices{"experimentalCallNotices", false};
inline const SettingsKey<bool> experimentalMessageNotices{"experimentalMessageNotices", false};
inline const SettingsKey<bool> experimentalFileTray{"experimentalFileTray", false};
inline const SettingsKey<std::string> fileTrayMode{"fileTrayMode", "link", fileTrayModeCases};

// What the Settings window needs to list and edit any key without knowing its C++ type.
struct SettingsKeyDescription {
  enum class Type {
    boolean,
    integer,
    number,
    string,
    enumeration,
    optionalString,
    list,
    dictionary
  };
  std::string_view name;
  Type type;
  JSONValue defaultValue;
  std::span<const std::string_view> cases;
};

// All keys, in declaration order.
const std::vector<SettingsKeyDescription>& allKeys();

// The description of the key called `name`, or nullptr.
const SettingsKeyDescription* describeKey(std::string_view name);

}  // namespace tindra::settings
