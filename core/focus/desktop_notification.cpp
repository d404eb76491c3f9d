#include "focus/desktop_notification.h"

#include <algorithm>
#include <expected>

#include "base/ascii_text.h"
#include "base/json_reader.h"
#include "focus/banner_classifier.h"
#include "focus/notification_text.h"

namespace tindra {

namespace {

constexpr std::string_view ringing = "call.incoming";
constexpr std::size_t maxAppLength = 60;

bool namedIn(const std::vector<std::string>& names, const DesktopNotification& notification) {
  const std::string entry = asciiLowercased(notification.desktopEntry);
  const std::string app = asciiLowercased(notification.appName);
  return std::any_of(names.begin(), names.end(), [&](const std::string& name) {
    const std::string wanted = asciiLowercased(name);
    return !wanted.empty() && (wanted == entry || wanted == app);
  });
}

std::optional<std::vector<std::string>> names(const JSONValue& object, std::string_view key) {
  const JSONValue* list = object.find(key);
  if (!list || !list->asArray()) return std::nullopt;
  std::vector<std::string> result;
  for (const JSONValue& item : *list->asArray()) {
    if (const std::string* name = item.asString()) result.push_back(*name);
  }
  return result;
}

}  // namespace

std::string DesktopNotification::app() const {
  std::string name =
      NotificationText::plain(appName.empty() ? desktopEntry : appName, maxAppLength);
  std::replace(name.begin(), name.end(), '\n', ' ');
  for (std::size_t at = name.find(", "); at != std::string::npos; at = name.find(", ", at)) {
    name.erase(at + 1, 1);
  }
  return name;
}

BannerApps BannerApps::defaults() {
  return {
      .calls = {"org.gnome.Calls", "sm.puri.Calls", "org.kde.plasma.dialer", "linphone",
                "org.linphone.Linphone", "skypeforlinux", "com.skype.Client"},
      .messages = {"org.gnome.Fractal", "org.gnome.Polari", "sm.puri.Chatty", "org.kde.neochat",
                   "org.telegram.desktop", "signal-desktop", "org.signal.Signal", "element-desktop",
                   "im.riot.Riot", "discord", "com.discordapp.Discord", "slack", "com.slack.Slack",
                   "org.kde.kdeconnect.daemon", "org.kde.kdeconnect.app"}};
}

BannerApps BannerApps::decode(std::string_view json) {
  BannerApps apps = defaults();
  const std::expected<JSONValue, JSONParseError> parsed = JSONReader::parse(json);
  if (!parsed || !parsed->asObject()) return apps;
  if (auto calls = names(*parsed, "callApps")) apps.calls = std::move(*calls);
  if (auto messages = names(*parsed, "messageApps")) apps.messages = std::move(*messages);
  return apps;
}

bool BannerApps::isCall(const DesktopNotification& notification) const {
  return notification.category.starts_with("call.") || namedIn(calls, notification);
}

bool BannerApps::isMessage(const DesktopNotification& notification) const {
  return notification.category.starts_with("im.") || namedIn(messages, notification);
}

NotificationBanner bannerOf(const DesktopNotification& notification, const BannerApps& apps) {
  const bool ringingCall = notification.category == ringing && apps.isCall(notification);
  std::string body = NotificationText::fromMarkup(notification.body);
  // Some programs put markup in the summary too; it is never drawn as such.
  std::string title = NotificationText::fromMarkup(notification.summary);
  NotificationBanner banner{
      .identifier = ringingCall ? std::string(BannerClassifier::ringingCallIdentifier) : "",
      .summary = notification.app() + ", " + title,
      .title = std::move(title),
      .body = body.empty() ? std::nullopt : std::optional(std::move(body))};
  return banner;
}

std::optional<BannerEvent> classifyNotification(const DesktopNotification& notification,
                                                const BannerApps& apps, bool messagesEnabled,
                                                bool callsEnabled) {
  // A call's end is no news, and a call app's other chatter is not a missed call.
  if (notification.category.starts_with("call.") && notification.category != ringing &&
      notification.category != "call.unanswered") {
    return std::nullopt;
  }
  const NotificationBanner banner = bannerOf(notification, apps);
  const std::string app = banner.app();
  return BannerClassifier::classify(banner, apps.isMessage(notification) ? app : "",
                                    apps.isCall(notification) ? app : "", messagesEnabled,
                                    callsEnabled);
}

}  // namespace tindra
