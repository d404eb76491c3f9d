#include "focus/focus_provider.h"

#include <gtest/gtest.h>

#include "focus/fake_focus_status_source.h"
#include "settings/settings_keys.h"
#include "shell/focus_command.h"
#include "testing/picture_checks.h"
#include "testing/provider_test_context.h"
#include "testing/view_shot.h"

namespace tindra {
namespace {

class FocusProviderTest : public ::testing::Test {
 protected:
  FocusProviderTest() { provider_ = std::make_unique<FocusProvider>(context_, status_); }

  // `tindra focus ...`, as a shortcut would run it; its exit status.
  int focusCommand(const QStringList& arguments) {
    QString output;
    QTextStream out(&output);
    QTextStream err(&errors_);
    return FocusCommand::run(arguments, context_.settings(), 1000.0, out, err);
  }

  ProviderTestContext context_;
  std::shared_ptr<FakeFocusStatusSource> status_ = std::make_shared<FakeFocusStatusSource>();
  std::unique_ptr<FocusProvider> provider_;
  QString errors_;
};

TEST_F(FocusProviderTest, TheCommandNamesTheFocusAndTheDesktopsOwnIsAnUnnamedMoon) {
  provider_->start();
  EXPECT_FALSE(provider_->shown());
  EXPECT_EQ(context_.activities().current(), ActivityKind::idle);

  ASSERT_EQ(focusCommand({"on", "--name", "Deep\nWork\n", "--symbol", "book"}), 0);
  using Shown = FocusPresentation::Shown;
  EXPECT_EQ(provider_->shown(), (Shown{"Deep Work", FocusSymbol::book}));
  EXPECT_EQ(context_.activities().current(), ActivityKind::focus);
  EXPECT_TRUE(provider_->viewModel()->indicator());

  // The desktop's do-not-disturb under a named Focus changes nothing shown.
  status_->setFocused(true);
  EXPECT_EQ(provider_->shown(), (Shown{"Deep Work", FocusSymbol::book}));

  ASSERT_EQ(focusCommand({"off"}), 0);
  EXPECT_EQ(provider_->shown(), (Shown{std::nullopt, FocusSymbol::moon}));
  status_->setFocused(false);
  EXPECT_FALSE(provider_->shown());
  EXPECT_EQ(provider_->lastTurnedOff(), (Shown{std::nullopt, FocusSymbol::moon}));
  EXPECT_EQ(context_.activities().current(), ActivityKind::idle);
  EXPECT_FALSE(provider_->viewModel()->indicator());
}

TEST_F(FocusProviderTest, SettingsSilenceTheNoticeOrTheIndicator) {
  provider_->start();
  ASSERT_TRUE(context_.settings().write(settings::focusKeepsIndicator, false));
  status_->setFocused(true);
  EXPECT_TRUE(provider_->shown());
  EXPECT_FALSE(provider_->viewModel()->indicator());

  ASSERT_TRUE(context_.settings().write(settings::focusShown, false));
  EXPECT_FALSE(provider_->shown());
  EXPECT_FALSE(provider_->viewModel()->shown());
}

TEST_F(FocusProviderTest, TheCommandRefusesWhatItCannotWrite) {
  EXPECT_EQ(focusCommand({"on", "--symbol", "rocket"}), 2);
  EXPECT_TRUE(errors_.contains("unknown symbol \"rocket\"")) << errors_.toStdString();
  EXPECT_TRUE(errors_.contains("moon, person, briefcase, bed, car, book, gamecontroller, figure"));
  EXPECT_EQ(focusCommand({"sideways"}), 2);
  EXPECT_EQ(focusCommand({"off", "--name", "x"}), 2);
  EXPECT_EQ(focusCommand({}), 2);
  EXPECT_EQ(context_.settings().read(settings::focusFilterState), "");
}

TEST_F(FocusProviderTest, TheNoticeShowsTheSymbolAndName) {
  provider_->start();
  ASSERT_EQ(focusCommand({"on", "--name", "Deep Work", "--symbol", "book"}), 0);
  const QImage shot = viewShot(compactView<FocusProvider>(ActivityKind::focus),
                               provider_->viewModel(), {260, 32}, "focus-notice");
  // The symbol on the left ear and the name on the right, both in the Focus colour.
  const PixelTest focusColour = hueOf("#7d7aff");
  EXPECT_GT(countPixels(shot, focusColour, {10, 0, 30, 32}), 60);
  EXPECT_GT(countPixels(shot, focusColour, rightHalf(shot)), 60);
  // The lasting indicator: the symbol, then the name beside it.
  const QImage indicator = viewShot(QUrl("qrc:/Tindra/focus/FocusIdleItem.qml"),
                                    provider_->viewModel(), {140, 20}, "focus-indicator");
  EXPECT_GT(countPixels(indicator, isDrawn, {0, 0, 14, 20}), 40);
  EXPECT_GT(drawnArea(indicator, {18, 0, 122, 20}).width(), 50);
}

}  // namespace
}  // namespace tindra
