#include "focus/desktop_notification.h"

#include <gtest/gtest.h>

#include "focus/notification_text.h"

namespace tindra {
namespace {

TEST(NotificationTextTest, MarkupBecomesPlainTextAndStrayBracketsStayText) {
  EXPECT_EQ(NotificationText::fromMarkup(
                "<b>Ana</b> sent <a href=\"https://x\">a link</a><br/>&lt;3 &amp; &#x1F600;&#33;"),
            "Ana sent a link\n<3 & 😀!");
  EXPECT_EQ(NotificationText::fromMarkup("a < b && c > d; 1<2 &bogus; &#xD800; <img src=x>"),
            "a < b && c > d; 1<2 &bogus; \uFFFD");
  EXPECT_EQ(NotificationText::fromMarkup("unclosed <b tag"), "unclosed <b tag");
}

TEST(NotificationTextTest, BadBytesControlsAndLengthAreTamed) {
  EXPECT_EQ(NotificationText::plain("  a\xff\xc0z\r\nb\tc\x07\x1b  "), "a\uFFFD\uFFFDz\nb c");
  const std::string huge(5'000'000, 'x');
  const std::string cut = NotificationText::fromMarkup(huge, 10);
  EXPECT_EQ(cut, "xxxxxxxxx…");
  EXPECT_EQ(NotificationText::plain("ääääää", 3), "ää…");
  EXPECT_EQ(NotificationText::plain("ääa", 3), "ääa");
}

DesktopNotification notification(std::string app, std::string category, std::string summary,
                                 std::string body = {}) {
  return {.appName = std::move(app),
          .summary = std::move(summary),
          .body = std::move(body),
          .category = std::move(category)};
}

TEST(DesktopNotificationTest, CategoriesMakeCallsAndMessages) {
  const BannerApps apps = BannerApps::defaults();
  EXPECT_EQ(classifyNotification(notification("Phone", "call.incoming", "Ana"), apps, true, true),
            BannerEvent::incomingCall());
  EXPECT_EQ(classifyNotification(notification("Phone", "call.incoming", "Ana"), apps, true, false),
            std::nullopt);
  EXPECT_EQ(classifyNotification(notification("Phone", "call.unanswered", "Missed call from Ana"),
                                 apps, false, true),
            BannerEvent::notice("Phone", "Missed call from Ana", std::nullopt, true));
  EXPECT_EQ(
      classifyNotification(notification("Phone", "call.ended", "Call ended"), apps, true, true),
      std::nullopt);
  EXPECT_EQ(classifyNotification(notification("Chat, Inc", "im.received", "Ana", "<i>hi</i>"), apps,
                                 true, true),
            BannerEvent::notice("Chat,Inc", "Ana", "hi", false));
  EXPECT_EQ(classifyNotification(notification("Chat", "im.received", "Ana"), apps, false, true),
            std::nullopt);
}

TEST(DesktopNotificationTest, KnownAppsCountWithoutCategoryAndOthersNever) {
  DesktopNotification signal = notification("", "", "Ana", "hello");
  signal.desktopEntry = "signal-desktop";
  EXPECT_EQ(classifyNotification(signal, BannerApps::defaults(), true, true),
            BannerEvent::notice("signal-desktop", "Ana", "hello", false));
  EXPECT_EQ(classifyNotification(notification("Mail", "email.arrived", "News"),
                                 BannerApps::defaults(), true, true),
            std::nullopt);
  EXPECT_EQ(classifyNotification(notification("", "im.received", "Ana"), BannerApps::defaults(),
                                 true, true),
            std::nullopt);
  EXPECT_EQ(classifyNotification(notification("Chat", "im.received", "  "), BannerApps::defaults(),
                                 true, true),
            std::nullopt);
}

TEST(DesktopNotificationTest, TheUsersListReplacesTheDefaultOneItNames) {
  const BannerApps apps = BannerApps::decode(R"({"messageApps": ["MAIL", 3]})");
  EXPECT_EQ(apps.messages, std::vector<std::string>{"MAIL"});
  EXPECT_EQ(apps.calls, BannerApps::defaults().calls);
  EXPECT_TRUE(apps.isMessage(notification("mail", "", "x")));
  EXPECT_EQ(BannerApps::decode("{broken").messages, BannerApps::defaults().messages);
}

}  // namespace
}  // namespace tindra
