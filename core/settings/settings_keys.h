// Every preference Tindra keeps, declared once in TINDRA_SETTINGS_KEYS: its value type, name,
// default and what it is for. The table makes the typed key `settings::<name>` and its entry in
// allKeys(), so nothing can list a key without its description or miss one. Enumeration keys
// store their case's raw value; an unknown stored string reads as the default.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "activity/notch_color_style.h"
#include "activity/notch_opening_mode.h"
#include "activity/notice_duration_scale.h"
#include "base/json_value.h"
#include "calendar/event_time_format.h"
#include "calendar/travel_transport.h"
#include "files/file_tray_storage_mode.h"
#include "hud/hud_bar_style.h"
#include "hud/hud_tint.h"
#include "lockscreen/lock_screen_style.h"
#include "nowplaying/now_playing_paused_linger.h"
#include "nowplaying/now_playing_progress_tint.h"
#include "nowplaying/now_playing_source_kind.h"
#include "power/accessory_battery_style.h"
#include "settings/settings_key.h"

// KEY(type, name, default, description), in the order the Settings window lists them.
// clang-format off
#define TINDRA_SETTINGS_KEYS(KEY) \
  KEY(bool, onboardingCompleted, false, "The first-run introduction has been seen.") \
  KEY(bool, playSounds, true, "Play a sound with notices that have one.") \
  KEY(bool, showMenuBarIcon, true, "Show Tindra in the tray.") \
  KEY(NoticeDurationScale, noticeDurationScale, NoticeDurationScale::medium, "How long notices stay: short, medium or long.") \
  KEY(bool, receiveBetaUpdates, false, "Offer test versions when updating.") \
  KEY(bool, showOnDisplaysWithoutNotch, true, "Draw a notch on displays that have none.") \
  KEY(std::string, displaySelection, "all", "Which displays show the notch: all, main, built-in or one by name.") \
  KEY(double, simulatedNotchWidth, 190.0, "Width in points of a drawn notch.") \
  KEY(bool, simulatedNotchMatchesMenuBar, true, "A drawn notch takes the height of the top panel.") \
  KEY(double, simulatedNotchHeight, 32.0, "Height in points of a drawn notch when it does not match the panel.") \
  KEY(NotchOpeningMode, notchOpeningMode, NotchOpeningMode::hover, "How the notch opens: on hover, on click, or pressed and held.") \
  KEY(double, hoverOpenDelay, 0.12, "Seconds the pointer rests on the notch before it opens.") \
  KEY(double, holdOpenDuration, 0.5, "Seconds of pressing that open the notch in press-and-hold mode.") \
  KEY(std::vector<std::string>, pinnedWidgets, {}, "Panel sections pinned in the opened notch, in order (\"media\", \"calendar\", \"weather\", \"batteries\", \"fileTray\"); empty shows every section with something to show.") \
  KEY(NowPlayingSourceMode, nowPlayingSourceMode, NowPlayingSourceMode::automatic, "Where the playing track comes from: automatic, or only the player scripts, which exist on a Mac alone (on the desktop that shows nothing).") \
  KEY(std::optional<std::string>, nowPlayingFallbackNoticeOSVersion, {}, "The system version on which the basic-mode notice was last shown.") \
  KEY(bool, artworkOnlineLookup, true, "Look covers up online when the player gives none.") \
  KEY(NowPlayingPausedLinger, nowPlayingPausedLinger, NowPlayingPausedLinger::short_, "How long a paused track stays shown: short, long or until resumed.") \
  KEY(NowPlayingProgressTint, nowPlayingProgressTint, NowPlayingProgressTint::standard, "The progress bar in the standard colour or the cover's.") \
  KEY(bool, volumeHUDEnabled, true, "Show volume changes in the notch. Option-Shift with a volume or brightness key changes it in smaller steps.") \
  KEY(bool, brightnessHUDEnabled, true, "Show brightness changes in the notch. Keys go to the system when the output or display cannot be controlled, or when BetterDisplay handles it.") \
  KEY(HUDBarStyle, hudBarStyle, HUDBarStyle::continuous, "How the level is drawn: a continuous bar, segments or a ring.") \
  KEY(HUDTint, hudTint, HUDTint::white, "The level's colour: white, by level, or the accent colour.") \
  KEY(double, hudDuration, 1.5, "Seconds the level stays shown after a change.") \
  KEY(bool, volumeFeedbackFallback, false, "Play the volume feedback sound where the system does not. Hold Shift while pressing a volume key to do the opposite.") \
  KEY(bool, batteryPluggedInNotice, true, "Tell when power is connected.") \
  KEY(bool, batteryUnpluggedNotice, true, "Tell when power is disconnected.") \
  KEY(bool, batteryLowAlert, true, "Warn when the battery runs low.") \
  KEY(std::int64_t, batteryLowThreshold, 20, "Percentage at which the battery counts as low.") \
  KEY(bool, accessoryConnectNotices, true, "Tell when a Bluetooth accessory connects.") \
  KEY(bool, airDropNotices, false, "Tell when files arrive from nearby devices.") \
  KEY(bool, accessoryLowAlert, true, "Warn when an accessory's battery runs low.") \
  KEY(std::int64_t, accessoryLowThreshold, 20, "Percentage at which an accessory's battery counts as low.") \
  KEY(bool, accessoryRouteNotice, true, "Tell when sound moves to an accessory.") \
  KEY(bool, accessoryDisconnectNotice, true, "Tell when a Bluetooth accessory disconnects.") \
  KEY(AccessoryBatteryStyle, accessoryBatteryStyle, AccessoryBatteryStyle::percentage, "Accessory batteries as a percentage or a ring.") \
  KEY(bool, calendarEnabled, false, "Show the next meeting.") \
  KEY(std::int64_t, calendarLeadMinutes, 10, "Minutes before a meeting that it appears.") \
  KEY(std::vector<std::string>, calendarExcludedIdentifiers, {}, "Calendars whose events are never shown.") \
  KEY(EventTimeFormat, calendarTimeFormat, EventTimeFormat::countdown, "The meeting's time as a countdown, its start time, or both.") \
  KEY(bool, calendarPrivacyMode, false, "Hide meeting titles.") \
  KEY(bool, calendarEventSound, false, "Play a sound when a meeting is about to start.") \
  KEY(JSONValue::Object, calendarEventSoundLog, {}, "Meetings whose start sound has played, so it plays once.") \
  KEY(bool, remindersEnabled, false, "Show reminders that are due.") \
  KEY(bool, travelTimeEnabled, false, "Count travel time before meetings with a place.") \
  KEY(TravelTransport, travelTransport, TravelTransport::automobile, "How you travel to meetings: by car, on foot or by transit.") \
  KEY(std::int64_t, travelBufferMinutes, 5, "Minutes added to the travel time.") \
  KEY(bool, weatherEnabled, false, "Show the weather.") \
  KEY(bool, focusShown, true, "Show when a Focus mode is on.") \
  KEY(bool, focusKeepsIndicator, true, "Keep a Focus mark on the notch while the Focus lasts.") \
  KEY(std::string, focusFilterState, "", "The Focus filter's last state, as written by the system.") \
  KEY(bool, swipeGestures, true, "Swipes on the notch control playback.") \
  KEY(bool, swipeChangesTrack, true, "Sideways swipes change the track.") \
  KEY(bool, swipeFeedback, false, "Give feedback when a swipe is recognised.") \
  KEY(bool, mouseDragGestures, false, "Dragging with the mouse works like swiping.") \
  KEY(bool, hideInFullScreen, true, "Hide the notch over full-screen windows.") \
  KEY(bool, hideForGames, true, "Hide the notch while a game runs.") \
  KEY(std::string, gameBundleIdentifiers, "", "Applications treated as games, one per line.") \
  KEY(bool, hideDuringMissionControl, false, "Hide the notch while windows are being arranged.") \
  KEY(bool, hideFromScreenRecordings, false, "Keep the notch out of screenshots and recordings.") \
  KEY(bool, glassBackground, false, "A translucent opened notch instead of black.") \
  KEY(NotchColorStyle, notchColorStyle, NotchColorStyle::monochrome, "The opened notch in black and white or in colour.") \
  KEY(bool, auraGlowWhenOpen, true, "A soft glow around the opened notch.") \
  KEY(bool, auraFlashOnOpen, true, "A brief flash when the notch opens.") \
  KEY(bool, auraColorfulBars, true, "Colourful bars in the live spectrum.") \
  KEY(bool, auraRimWhenClosed, true, "A thin coloured rim on the closed notch.") \
  KEY(bool, liveWaveform, false, "Show a live spectrum of the playing audio.") \
  KEY(bool, experimentalLockScreen, false, "Show widgets on the lock screen (experimental).") \
  KEY(LockScreenStyle, lockScreenStyle, LockScreenStyle::frosted, "The lock-screen widgets' background: clear, light frost or frosted.") \
  KEY(double, lockWidgetOffset, 0.0, "Vertical offset in points of the lock-screen widgets.") \
  KEY(bool, lockScreenNotch, false, "Keep the notch on the lock screen.") \
  KEY(std::string, lockScreenNotice, "", "The last lock-screen notice, kept to show it once.") \
  KEY(std::string, lockScreenNotchNotice, "", "The last lock-screen notch notice, kept to show it once.") \
  KEY(bool, experimentalKeyboardBacklight, false, "Show keyboard backlight changes (experimental).") \
  KEY(std::string, keyboardBacklightMissingOn, "", "The system version on which no keyboard backlight was found.") \
  KEY(bool, experimentalCallNotices, false, "Show incoming calls (experimental).") \
  KEY(bool, experimentalMessageNotices, false, "Show incoming messages (experimental).") \
  KEY(bool, experimentalFileTray, false, "Keep dropped files in a tray (experimental).") \
  KEY(FileTrayStorageMode, fileTrayMode, FileTrayStorageMode::link, "The tray keeps links to dropped files or copies of them.")
// clang-format on

namespace tindra::settings {

#define TINDRA_DECLARE_SETTINGS_KEY(type, name, defaultValue, description) \
  inline const SettingsKey<type> name{#name, defaultValue, description};
TINDRA_SETTINGS_KEYS(TINDRA_DECLARE_SETTINGS_KEY)
#undef TINDRA_DECLARE_SETTINGS_KEY

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
  std::string_view description;
  std::span<const std::string_view> cases;  // an enumeration's raw values; empty otherwise
};

// All keys, in table order.
const std::vector<SettingsKeyDescription>& allKeys();

// The description of the key called `name`, or nullptr.
const SettingsKeyDescription* describeKey(std::string_view name);

}  // namespace tindra::settings
