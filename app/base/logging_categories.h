// The log categories, one per source, all under "com.brenvik.tindra". Turn one on with
// QT_LOGGING_RULES="com.brenvik.tindra.now-playing.adapter.debug=true".
#pragma once

#include <QLoggingCategory>

namespace tindra {

Q_DECLARE_LOGGING_CATEGORY(lcApp)
Q_DECLARE_LOGGING_CATEGORY(lcSettings)
Q_DECLARE_LOGGING_CATEGORY(lcNotch)
Q_DECLARE_LOGGING_CATEGORY(lcNowPlayingAdapter)
Q_DECLARE_LOGGING_CATEGORY(lcNowPlaying)
Q_DECLARE_LOGGING_CATEGORY(lcArtwork)
Q_DECLARE_LOGGING_CATEGORY(lcHud)
Q_DECLARE_LOGGING_CATEGORY(lcMediaKeys)
Q_DECLARE_LOGGING_CATEGORY(lcBattery)
Q_DECLARE_LOGGING_CATEGORY(lcBluetooth)
Q_DECLARE_LOGGING_CATEGORY(lcCalendar)
Q_DECLARE_LOGGING_CATEGORY(lcWeather)
Q_DECLARE_LOGGING_CATEGORY(lcFocus)
Q_DECLARE_LOGGING_CATEGORY(lcBanners)
Q_DECLARE_LOGGING_CATEGORY(lcLockScreen)
Q_DECLARE_LOGGING_CATEGORY(lcFiles)

}  // namespace tindra
