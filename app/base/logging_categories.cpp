#include "base/logging_categories.h"

namespace tindra {

// Info and above are on by default: start-up checks and faults of services belong in the log.
Q_LOGGING_CATEGORY(lcApp, "com.brenvik.tindra.app", QtInfoMsg)
Q_LOGGING_CATEGORY(lcSettings, "com.brenvik.tindra.settings", QtInfoMsg)
Q_LOGGING_CATEGORY(lcNotch, "com.brenvik.tindra.notch", QtInfoMsg)
Q_LOGGING_CATEGORY(lcNowPlayingAdapter, "com.brenvik.tindra.now-playing.adapter", QtInfoMsg)
Q_LOGGING_CATEGORY(lcNowPlaying, "com.brenvik.tindra.now-playing", QtInfoMsg)
Q_LOGGING_CATEGORY(lcArtwork, "com.brenvik.tindra.now-playing.artwork", QtInfoMsg)
Q_LOGGING_CATEGORY(lcHud, "com.brenvik.tindra.hud", QtInfoMsg)
Q_LOGGING_CATEGORY(lcMediaKeys, "com.brenvik.tindra.media-keys", QtInfoMsg)
Q_LOGGING_CATEGORY(lcBattery, "com.brenvik.tindra.battery", QtInfoMsg)
Q_LOGGING_CATEGORY(lcBluetooth, "com.brenvik.tindra.bluetooth", QtInfoMsg)
Q_LOGGING_CATEGORY(lcCalendar, "com.brenvik.tindra.calendar", QtInfoMsg)
Q_LOGGING_CATEGORY(lcWeather, "com.brenvik.tindra.weather", QtInfoMsg)
Q_LOGGING_CATEGORY(lcFocus, "com.brenvik.tindra.focus", QtInfoMsg)
Q_LOGGING_CATEGORY(lcBanners, "com.brenvik.tindra.banners", QtInfoMsg)
Q_LOGGING_CATEGORY(lcLockScreen, "com.brenvik.tindra.lock-screen", QtInfoMsg)
Q_LOGGING_CATEGORY(lcFiles, "com.brenvik.tindra.files", QtInfoMsg)

}  // namespace tindra
