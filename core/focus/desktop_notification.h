// DesktopNotification: one notification as a program sent it to the desktop's notification
// server (org.freedesktop.Notifications Notify), in plain values, and what it means for the
// notch. The sender is known by its app_name and its "desktop-entry" hint; what it is by its
// "category" hint ("call.incoming", "call.unanswered", "im.received") or, for programs that send
// none, by being one of the call or message applications the user has.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "focus/banner_event.h"
#include "focus/notification_banner.h"

namespace tindra {

struct DesktopNotification {
  std::uint32_t id = 0;  // the server's number for it; 0 until the server answered
  std::string appName{};
  std::string desktopEntry{};  // without ".desktop"
  std::string summary{};
  std::string body{};  // body markup
  std::string category{};
  std::vector<std::string> actions{};  // identifier and label, in pairs, as sent

  // The sender as a person knows it: app_name, else the desktop entry; one piece of a banner
  // summary, so without ", ".
  std::string app() const;

  friend bool operator==(const DesktopNotification&, const DesktopNotification&) = default;
};

// Which applications' notifications are calls and which are messages, by desktop entry or
// app_name (letter case ignored), beside what the category hint says.
struct BannerApps {
  std::vector<std::string> calls{};
  std::vector<std::string> messages{};

  // The call and chat programs of Linux desktops that send no category hint.
  static BannerApps defaults();
  // {"callApps": [...], "messageApps": [...]}, as a person writes it into "banner-apps.json":
  // each list present replaces the default one; anything unreadable keeps the defaults.
  static BannerApps decode(std::string_view json);

  bool isCall(const DesktopNotification& notification) const;
  bool isMessage(const DesktopNotification& notification) const;
};

// The banner a notification makes: the sender, the summary as title and the body as plain text;
// a ringing call of a call application is the ringing banner.
NotificationBanner bannerOf(const DesktopNotification& notification, const BannerApps& apps);
// What the notch shows for `notification`, by BannerClassifier's rules.
std::optional<BannerEvent> classifyNotification(const DesktopNotification& notification,
                                                const BannerApps& apps, bool messagesEnabled,
                                                bool callsEnabled);

}  // namespace tindra
