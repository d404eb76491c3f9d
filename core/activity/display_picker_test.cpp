#include "activity/display_picker.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

const DisplayCandidate laptop{.id = 1,
                              .name = "Built-in Display",
                              .isBuiltIn = true,
                              .isMain = false,
                              .hasHardwareNotch = true};
const DisplayCandidate desk{.id = 7, .name = "Desk Monitor", .isMain = true};
const DisplayCandidate side{.id = 4, .name = "Side Monitor"};
const DisplayCandidate sideTwin{.id = 9, .name = "Side Monitor"};

std::vector<std::uint32_t> ids(const std::vector<DisplayCandidate>& picked) {
  std::vector<std::uint32_t> result;
  for (const auto& c : picked) result.push_back(c.id);
  return result;
}

std::vector<std::uint32_t> pick(std::vector<DisplayCandidate> candidates, DisplaySelection s,
                                bool drawn = true) {
  return ids(DisplayPicker::pick(candidates, s, drawn));
}

TEST(DisplaySelection, TextRoundTripsAndAnythingElseIsAll) {
  for (const auto& s :
       {DisplaySelection::all(), DisplaySelection::main(), DisplaySelection::builtIn(),
        DisplaySelection::named("Desk Monitor"), DisplaySelection::named(":x")}) {
    EXPECT_EQ(DisplaySelection::fromText(s.text()), s) << s.text();
  }
  EXPECT_EQ(DisplaySelection::named("Desk Monitor").text(), "named:Desk Monitor");
  EXPECT_EQ(DisplaySelection::fromText("named:Desk Monitor").name(), "Desk Monitor");
  for (const char* text : {"named:", "", "all", "Main", "builtin", "named", " main"}) {
    EXPECT_EQ(DisplaySelection::fromText(text), DisplaySelection::all()) << text;
  }
}

TEST(DisplayPicker, SelectsByKindInIdOrder) {
  const std::vector<DisplayCandidate> all{sideTwin, desk, laptop, side};
  EXPECT_EQ(pick(all, DisplaySelection::all()), (std::vector<std::uint32_t>{1, 4, 7, 9}));
  EXPECT_EQ(pick(all, DisplaySelection::main()), (std::vector<std::uint32_t>{7}));
  EXPECT_EQ(pick(all, DisplaySelection::builtIn()), (std::vector<std::uint32_t>{1}));
  EXPECT_EQ(pick(all, DisplaySelection::named("Side Monitor")), (std::vector<std::uint32_t>{4, 9}));
  // The same displays listed in another order give the same answer.
  EXPECT_EQ(pick({side, laptop, desk, sideTwin}, DisplaySelection::all()),
            pick(all, DisplaySelection::all()));
}

TEST(DisplayPicker, AMissingChoiceFallsBackToMainThenTheFirst) {
  // Lid closed: no built-in display attached.
  EXPECT_EQ(pick({side, desk}, DisplaySelection::builtIn()), (std::vector<std::uint32_t>{7}));
  EXPECT_EQ(pick({side, desk, laptop}, DisplaySelection::named("Gone")),
            (std::vector<std::uint32_t>{7}));
  // Names match exactly, case included.
  EXPECT_EQ(pick({side, desk}, DisplaySelection::named("side monitor")),
            (std::vector<std::uint32_t>{7}));
  EXPECT_EQ(pick({sideTwin, side}, DisplaySelection::main()), (std::vector<std::uint32_t>{4}));
  EXPECT_EQ(pick({}, DisplaySelection::builtIn()), (std::vector<std::uint32_t>{}));
}

TEST(DisplayPicker, DisplaysWithoutANotchNeedDrawnNotches) {
  const std::vector<DisplayCandidate> all{desk, laptop, side};
  EXPECT_EQ(pick(all, DisplaySelection::all(), false), (std::vector<std::uint32_t>{1}));
  EXPECT_EQ(pick(all, DisplaySelection::main(), false), (std::vector<std::uint32_t>{}));
  // The fallback obeys the same rule rather than ignoring the user's choice.
  EXPECT_EQ(pick({desk, side}, DisplaySelection::builtIn(), false), (std::vector<std::uint32_t>{}));
}

}  // namespace
}  // namespace tindra
