#include "focus/banner_classifier.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

constexpr std::string_view messages = "Messages";
constexpr std::string_view faceTime = "FaceTime";

std::optional<BannerEvent> classify(const NotificationBanner& banner, bool messagesEnabled = true,
                                    bool callsEnabled = true) {
  return BannerClassifier::classify(banner, messages, faceTime, messagesEnabled, callsEnabled);
}

TEST(BannerClassifierTest, RingingBannerWinsWhateverItsSummarySays) {
  NotificationBanner ringing{.identifier = "FACETIME_NOTIFICATION",
                             .summary = "Messages, Anna, hello",
                             .title = "Anna",
                             .body = "hello"};
  EXPECT_EQ(classify(ringing), BannerEvent::incomingCall());
  EXPECT_EQ(classify(ringing, true, false), std::nullopt);  // not read as a message instead
  ringing.summary = "";
  EXPECT_EQ(classify(ringing, false, true), BannerEvent::incomingCall());
  // The identifier must match exactly.
  ringing.identifier = "facetime_notification";
  EXPECT_EQ(classify(ringing), std::nullopt);
}

TEST(BannerClassifierTest, MessagesAndMissedCallsCarryTheirText) {
  const NotificationBanner message{.summary = "Messages, Anna, See you at 8, ok?",
                                   .body = "See you at 8, ok?"};
  EXPECT_EQ(classify(message), BannerEvent::notice("Messages", "Anna", "See you at 8, ok?", false));
  EXPECT_EQ(classify(message, false, true), std::nullopt);

  // A FaceTime banner that is not the ringing one is a missed call.
  const NotificationBanner missed{.summary = "FaceTime", .title = "Bob", .body = "Missed call"};
  EXPECT_EQ(classify(missed), BannerEvent::notice("FaceTime", "Bob", "Missed call", true));
  EXPECT_EQ(classify(missed, true, false), std::nullopt);

  // The title child beats the summary's second piece, even when it is empty.
  NotificationBanner titled{.summary = "Messages, Anna, hi", .title = "Anna Berg"};
  EXPECT_EQ(classify(titled), BannerEvent::notice("Messages", "Anna Berg", std::nullopt, false));
  titled.title = "";
  EXPECT_EQ(classify(titled), std::nullopt);
}

TEST(BannerClassifierTest, OtherAppsAndUntitledBannersGiveNothing) {
  EXPECT_EQ(classify({.summary = "Messages"}), std::nullopt);
  EXPECT_EQ(classify({.summary = "Messages, "}), std::nullopt);
  EXPECT_EQ(classify({.summary = "Mail, Anna, hi"}), std::nullopt);
  // The application name is the whole first piece, compared exactly.
  EXPECT_EQ(classify({.summary = "Messages Beta, Anna, hi"}), std::nullopt);
  EXPECT_EQ(classify({.summary = "messages, Anna, hi"}), std::nullopt);
  // Without a ", " separator the summary is one piece, commas or not.
  EXPECT_EQ(classify({.summary = "Messages,Anna"}), std::nullopt);
  // App names the provider could not read match no banner.
  EXPECT_EQ(BannerClassifier::classify({.summary = ", Anna, hi"}, "", "", true, true),
            std::nullopt);
}

TEST(BannerClassifierTest, SummarySplitsAtCommaAndSpace) {
  const NotificationBanner banner{.summary = "Messages, Anna, a, b"};
  EXPECT_EQ(banner.summaryComponents(),
            (std::vector<std::string_view>{"Messages", "Anna", "a", "b"}));
  EXPECT_EQ(banner.app(), "Messages");
  EXPECT_EQ(NotificationBanner{}.app(), "");
  EXPECT_EQ((NotificationBanner{.summary = ", , "}.summaryComponents()),
            (std::vector<std::string_view>{"", "", ""}));
}

}  // namespace
}  // namespace tindra
