#include "activity/display_selection.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

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

}  // namespace
}  // namespace tindra
