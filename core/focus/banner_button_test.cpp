#include "focus/banner_button.h"

#include <gtest/gtest.h>

#include "focus/notification_banner.h"

namespace tindra {
namespace {

TEST(BannerButtonTest, LabelRunsToTheFirstLineBreak) {
  const std::string reply = "Name:Reply\nTarget:0x0\nSelector:(null)";
  EXPECT_EQ(BannerButton::fromAction(reply), (BannerButton{"Reply", reply}));
  EXPECT_EQ(BannerButton::fromAction("Name:Call Back"),
            (BannerButton{"Call Back", "Name:Call Back"}));
  EXPECT_EQ(BannerButton::fromAction("Name:Mark as Read\r\nx")->name, "Mark as Read");
  EXPECT_EQ(BannerButton::fromAction("Name: \nx")->name, " ");
  EXPECT_EQ(BannerButton::fromAction("Name:\nReply"), std::nullopt);
  EXPECT_EQ(BannerButton::fromAction("Name:"), std::nullopt);
  EXPECT_EQ(BannerButton::fromAction("AXPress"), std::nullopt);
  EXPECT_EQ(BannerButton::fromAction("name:Reply"), std::nullopt);
  EXPECT_EQ(BannerButton::fromAction(" Name:Reply"), std::nullopt);
}

TEST(BannerButtonTest, BannerKeepsButtonActionsInOrder) {
  const NotificationBanner banner{
      .actions = {"AXPress", "Name:Reply\nTarget:1", "Name:\nTarget:2", "Name:Close"}};
  EXPECT_EQ(banner.buttons(), (std::vector<BannerButton>{{"Reply", "Name:Reply\nTarget:1"},
                                                         {"Close", "Name:Close"}}));
}

}  // namespace
}  // namespace tindra
