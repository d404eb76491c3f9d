#include "focus/focus_presentation.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

using Shown = FocusPresentation::Shown;

TEST(FocusPresentationTest, FilterBeatsSystemStatus) {
  const FocusFilterState work(true, "Work", FocusSymbol::briefcase, 1);
  EXPECT_EQ(FocusPresentation::shown(work, false), (Shown{"Work", FocusSymbol::briefcase}));
  EXPECT_EQ(FocusPresentation::shown(work, true), (Shown{"Work", FocusSymbol::briefcase}));
  // Active with an empty name: the chosen symbol without a name.
  const FocusFilterState unnamed(true, " \n", FocusSymbol::book, 1);
  EXPECT_EQ(FocusPresentation::shown(unnamed, false), (Shown{std::nullopt, FocusSymbol::book}));
  // An inactive filter's name and symbol never leak into the system's unnamed Focus.
  const FocusFilterState off(false, "Sleep", FocusSymbol::bed, 1);
  EXPECT_EQ(FocusPresentation::shown(off, true), (Shown{std::nullopt, FocusSymbol::moon}));
  EXPECT_EQ(FocusPresentation::shown(off, false), std::nullopt);
  EXPECT_EQ(FocusPresentation::shown(FocusFilterState::inactive(), false), std::nullopt);
}

TEST(FocusPresentationTest, IndicatorFollowsItsSetting) {
  const Shown car{"Driving", FocusSymbol::car};
  EXPECT_EQ(FocusPresentation::indicator(car, true), car);
  EXPECT_EQ(FocusPresentation::indicator(car, false), std::nullopt);
  EXPECT_EQ(FocusPresentation::indicator(std::nullopt, true), std::nullopt);
}

TEST(FocusPresentationTest, SymbolsReadBackFromTheirRawValues) {
  for (FocusSymbol symbol : allCases<FocusSymbol>()) {
    EXPECT_EQ(enumFromRaw<FocusSymbol>(rawValue(symbol)), symbol);
  }
  EXPECT_EQ(systemSymbolName(FocusSymbol::bed), "bed.double.fill");
  EXPECT_EQ(systemSymbolName(FocusSymbol::figure), "figure.mind.and.body");
  EXPECT_EQ(enumFromRaw<FocusSymbol>("moon.fill"), std::nullopt);
}

}  // namespace
}  // namespace tindra
