#include "activity/display_naming.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

using Names = std::vector<std::string>;

Names names(const std::vector<DisplayIdentity>& displays) {
  return DisplayNaming::names(displays, "Built-in display");
}

bool refersTo(std::string_view stored, const DisplayIdentity& display) {
  return DisplayNaming::refersTo(stored, display, "Built-in display");
}

const DisplayIdentity laptop{"eDP-1", "0x08E8"};
const DisplayIdentity dellLeft{"DP-1", "DELL U2720Q"};
const DisplayIdentity dellRight{"DP-2", "DELL U2720Q"};
const DisplayIdentity projector{"HDMI-1", ""};

TEST(DisplayNaming, MonitorsGoByProductNameAndThePanelByWhatItIs) {
  EXPECT_EQ(names({laptop, dellLeft, projector}),
            (Names{"Built-in display", "DELL U2720Q", "HDMI-1"}));
  // Every kind of panel connector, whatever the panel's EDID calls it.
  for (const char* connector : {"eDP-2", "LVDS-1", "DSI-1"}) {
    EXPECT_EQ(names({{connector, "LQ156M1JW16"}}), Names{"Built-in display"}) << connector;
  }
  EXPECT_FALSE(DisplayNaming::isBuiltInConnector("DP-1"));
  EXPECT_FALSE(DisplayNaming::isBuiltInConnector("HDMI-A-1"));
  // What tells nothing is no name: the connector stays.
  EXPECT_EQ(
      names({{"DP-3", "  "}, {"DP-4", "Unknown"}, {"DP-5", "0x4c2d"}, {"DP-6", " LG HDR 4K "}}),
      (Names{"DP-3", "DP-4", "DP-5", "LG HDR 4K"}));
}

TEST(DisplayNaming, TwinsAreToldApartByTheirConnectors) {
  EXPECT_EQ(names({dellLeft, dellRight, projector}),
            (Names{"DELL U2720Q (DP-1)", "DELL U2720Q (DP-2)", "HDMI-1"}));
  EXPECT_EQ(names({{"eDP-1", ""}, {"eDP-2", ""}}),
            (Names{"Built-in display (eDP-1)", "Built-in display (eDP-2)"}));
  // A monitor named like another's connector takes the brackets; the connector needs none.
  EXPECT_EQ(names({{"DP-1", "HDMI-1"}, projector}), (Names{"HDMI-1 (DP-1)", "HDMI-1"}));
  EXPECT_EQ(names({}), Names{});
}

TEST(DisplayNaming, NamesChosenBeforeStillMeanTheirDisplay) {
  // Stored as the connector, as every name was before monitors went by product names.
  EXPECT_TRUE(refersTo("DP-2", dellRight));
  EXPECT_TRUE(refersTo("eDP-1", laptop));
  // Chosen while the twin was unplugged (bare) or attached (bracketed).
  EXPECT_TRUE(refersTo("DELL U2720Q", dellLeft));
  EXPECT_TRUE(refersTo("DELL U2720Q", dellRight));
  EXPECT_TRUE(refersTo("DELL U2720Q (DP-2)", dellRight));
  EXPECT_FALSE(refersTo("DELL U2720Q (DP-2)", dellLeft));
  EXPECT_TRUE(refersTo("Built-in display", laptop));
  // Names match exactly; the panel's own product code is not a name it goes by.
  EXPECT_FALSE(refersTo("dell u2720q", dellLeft));
  EXPECT_FALSE(refersTo("DP-1 ", dellLeft));
  EXPECT_FALSE(refersTo("0x08E8", laptop));
  EXPECT_FALSE(refersTo("", projector));
  EXPECT_FALSE(refersTo("HDMI-1 (HDMI-1)", projector));
}

}  // namespace
}  // namespace tindra
