// BannerClassifier: turns a notification banner into a notch event. The ringing FaceTime banner
// is recognised by its identifier before anything else, whatever its summary says; other banners
// count only when they come from the Messages or FaceTime application and that kind is enabled.
#pragma once

#include <optional>
#include <string_view>

#include "focus/banner_event.h"
#include "focus/notification_banner.h"

namespace tindra {

struct BannerClassifier {
  static constexpr std::string_view ringingCallIdentifier = "FACETIME_NOTIFICATION";

  // `messagesApp` and `callApp` are the display names of the Messages and FaceTime applications.
  // An empty application name matches neither, so a provider that could not read the names
  // accepts nothing but the ringing banner. The title falls back to the summary's second piece;
  // an empty title gives nothing.
  static std::optional<BannerEvent> classify(const NotificationBanner& banner,
                                             std::string_view messagesApp, std::string_view callApp,
                                             bool messagesEnabled, bool callsEnabled);
};

}  // namespace tindra
