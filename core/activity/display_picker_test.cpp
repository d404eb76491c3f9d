#include "activity/display_picker.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

const DisplayCandidate laptop{
    .id = 1, .name = "Built-in Display", .isBuiltIn = true, .hasHardwareNotch = true};
const DisplayCandidate desk{.id = 7, .name = "Desk Monitor", .isMain = true};
const DisplayCandidate side{.id = 4, .name = "Side Monitor"};
const DisplayCandidate sideTwin{.id = 9, .name = "Side Monitor"};

using Ids = std::vector<std::uint32_t>;

Ids pick(std::vector<DisplayCandidate> candidates, DisplaySelection s, bool drawn = true) {
  Ids ids;
  for (const auto& c : DisplayPicker::pick(candidates, s, drawn)) ids.push_back(c.id);
  return ids;
}

TEST(DisplayPicker, SelectsByKindInIdOrder) {
  const std::vector<DisplayCandidate> all{sideTwin, desk, laptop, side};
  EXPECT_EQ(pick(all, DisplaySelection::all()), (Ids{1, 4, 7, 9}));
  EXPECT_EQ(pick(all, DisplaySelection::main()), (Ids{7}));
  EXPECT_EQ(pick(all, DisplaySelection::builtIn()), (Ids{1}));
  EXPECT_EQ(pick(all, DisplaySelection::named("Side Monitor")), (Ids{4, 9}));
  // The same displays listed in another order give the same answer.
  EXPECT_EQ(pick({side, laptop, desk, sideTwin}, DisplaySelection::all()),
            pick(all, DisplaySelection::all()));
}

TEST(DisplayPicker, AMissingChoiceFallsBackToMainThenTheFirst) {
  // Lid closed: no built-in display attached.
  EXPECT_EQ(pick({side, desk}, DisplaySelection::builtIn()), (Ids{7}));
  EXPECT_EQ(pick({side, desk, laptop}, DisplaySelection::named("Gone")), (Ids{7}));
  // Names match exactly, case included.
  EXPECT_EQ(pick({side, desk}, DisplaySelection::named("side monitor")), (Ids{7}));
  EXPECT_EQ(pick({sideTwin, side}, DisplaySelection::main()), (Ids{4}));
  EXPECT_EQ(pick({}, DisplaySelection::builtIn()), (Ids{}));
}

TEST(DisplayPicker, DisplaysWithoutANotchNeedDrawnNotches) {
  const std::vector<DisplayCandidate> all{desk, laptop, side};
  EXPECT_EQ(pick(all, DisplaySelection::all(), false), (Ids{1}));
  EXPECT_EQ(pick(all, DisplaySelection::main(), false), (Ids{}));
  // The fallback obeys the same rule rather than ignoring the user's choice.
  EXPECT_EQ(pick({desk, side}, DisplaySelection::builtIn(), false), (Ids{}));
}

TEST(DisplayPicker, ANameMatchDecidesWhichDisplaysANameMeans) {
  // The platform says "DP-4" is what the side monitor was called before.
  const DisplayPicker::NameMatch formerly = [](const DisplayCandidate& c, std::string_view name) {
    return c.name == name || (c.id == 4 && name == "DP-4");
  };
  const std::vector<DisplayCandidate> all{desk, side, sideTwin};
  const auto pickWith = [&](std::string name) {
    Ids ids;
    for (const auto& c : DisplayPicker::pick(all, DisplaySelection::named(name), true, formerly))
      ids.push_back(c.id);
    return ids;
  };
  EXPECT_EQ(pickWith("DP-4"), (Ids{4}));
  EXPECT_EQ(pickWith("Side Monitor"), (Ids{4, 9}));
  EXPECT_EQ(pickWith("DP-9"), (Ids{7}));  // gone: the main display has it
}

}  // namespace
}  // namespace tindra
