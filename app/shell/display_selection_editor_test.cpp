// The choice of displays in Settings, as the app wires it: a list of the attached displays that
// follows them, writes the choice through the window and keeps a choice whose display is gone.
#include "shell/display_selection_editor.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

#include "base/diagnostics_log.h"
#include "settings/settings_keys.h"
#include "settings/settings_store.h"
#include "shell/settings_pages.h"
#include "shell/settings_window.h"
#include "shell/shell_actions.h"
#include "testing/fake_screen_source.h"
#include "testing/view_shot.h"
#include "tindra_providers.h"

namespace tindra {
namespace {

// A laptop on a desk with two monitors of one model.
const FakeScreenSource::Screen laptop{1,    "eDP-1", {0, 0, 1512, 982}, {0, 32, 1512, 950},
                                      true, "0x08E8"};
const FakeScreenSource::Screen leftDell{
    2, "DP-1", {1512, 0, 2560, 1440}, {1512, 0, 2560, 1440}, false, "DELL U2720Q"};
const FakeScreenSource::Screen rightDell{
    3, "DP-2", {4072, 0, 2560, 1440}, {4072, 0, 2560, 1440}, false, "DELL U2720Q"};

class DisplaySelectionEditorTest : public ::testing::Test {
 protected:
  void SetUp() override {
    screens_.set({laptop, leftDell, rightDell});
    actions_.setDisplays(&screens_);
    actions_.openSettings();
    editor_ = qobject_cast<DisplaySelectionEditor*>(
        actions_.settingsWindow()->editorFor(settings::displaySelection.name));
    ASSERT_NE(editor_, nullptr);
  }

  QStringList entries() const {
    QStringList texts;
    for (int i = 0; i < editor_->count(); ++i) texts.append(editor_->itemText(i));
    return texts;
  }

  // What the user does: opens the list and picks the entry called `text`.
  void pick(const QString& text) {
    const int index = editor_->findText(text);
    ASSERT_GE(index, 0) << text.toStdString();
    editor_->setCurrentIndex(index);
    emit editor_->activated(index);
  }

  std::string stored() { return store_.read(settings::displaySelection); }

  QTemporaryDir dir_;
  SettingsStore store_{dir_.filePath("settings.json").toStdString(), [] { return 0.0; }};
  const ViewRegistry views_{TindraProviders::views()};
  DiagnosticsLog log_;
  FakeScreenSource screens_;
  ShellActions actions_{store_, log_, views_};
  DisplaySelectionEditor* editor_ = nullptr;
};

TEST_F(DisplaySelectionEditorTest, OffersTheAttachedDisplaysByNameAndWritesTheChoice) {
  EXPECT_EQ(entries(),
            (QStringList{"Every display", "Main display (Built-in display)", "", "Built-in display",
                         "DELL U2720Q (DP-1)", "DELL U2720Q (DP-2)"}));
  EXPECT_EQ(editor_->currentText(), "Every display");

  pick("DELL U2720Q (DP-2)");
  EXPECT_EQ(stored(), "named:DELL U2720Q (DP-2)");
  // The panel is chosen as the built-in display, which stays right when its connector changes.
  pick("Built-in display");
  EXPECT_EQ(stored(), "builtIn");
  pick("Main display (Built-in display)");
  EXPECT_EQ(stored(), "main");

  actions_.settingsWindow()->resetPage(settingsPageOf(settings::displaySelection.name));
  EXPECT_EQ(editor_->currentText(), "Every display");
}

TEST_F(DisplaySelectionEditorTest, FollowsDisplaysAndKeepsAChoiceWhoseDisplayIsGone) {
  pick("DELL U2720Q (DP-2)");
  screens_.set({laptop, leftDell});
  // Its twin now goes by the bare model name; the choice stays, marked, and is not rewritten.
  EXPECT_EQ(entries(),
            (QStringList{"Every display", "Main display (Built-in display)", "", "Built-in display",
                         "DELL U2720Q", "", "DELL U2720Q (DP-2) (not connected)"}));
  EXPECT_EQ(editor_->currentText(), "DELL U2720Q (DP-2) (not connected)");
  EXPECT_EQ(stored(), "named:DELL U2720Q (DP-2)");
  screens_.set({laptop, leftDell, rightDell});
  EXPECT_EQ(editor_->currentText(), "DELL U2720Q (DP-2)");
  EXPECT_EQ(editor_->count(), 6);

  // The lid is closed while the built-in display is chosen, and then the last monitor goes.
  pick("Built-in display");
  FakeScreenSource::Screen onlyLeft = leftDell;
  onlyLeft.isMain = true;
  screens_.set({onlyLeft});
  EXPECT_EQ(editor_->currentText(), "Built-in display (not connected)");
  screens_.set({});
  EXPECT_EQ(entries(),
            (QStringList{"Every display", "Main display", "", "Built-in display (not connected)"}));
}

TEST_F(DisplaySelectionEditorTest, ChoicesStoredUnderOlderNamesShowAsTheirDisplay) {
  const auto shownFor = [this](const std::string& selection) {
    EXPECT_TRUE(store_.write(settings::displaySelection, selection));
    return editor_->currentText();
  };
  // By connector, as every choice was stored before displays went by product names.
  EXPECT_EQ(shownFor("named:DP-1"), "DELL U2720Q (DP-1)");
  EXPECT_EQ(shownFor("named:eDP-1"), "Built-in display");
  // A model name chosen while one twin was unplugged means both now.
  EXPECT_EQ(shownFor("named:DELL U2720Q"), "DELL U2720Q (2 displays)");
  EXPECT_EQ(shownFor("named:Projector"), "Projector (not connected)");
  // Text that names no choice is every display, as the notch reads it.
  EXPECT_EQ(shownFor("named:"), "Every display");
  EXPECT_EQ(shownFor("everywhere"), "Every display");
  EXPECT_EQ(stored(), "everywhere") << "showing a choice never rewrites it";
}

// The Notch page with the choice, and with the list open, saved to be looked at
// (TINDRA_SCREENSHOTS).
TEST_F(DisplaySelectionEditorTest, Screenshot) {
  pick("DELL U2720Q (DP-2)");
  screens_.set({laptop, leftDell});
  SettingsWindow& window = *actions_.settingsWindow();
  window.showPage(settingsPageOf(settings::displaySelection.name));
  window.resize(900, 520);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  keepScreenshot(window.grab().toImage(), QStringLiteral("settings-displays-chosen"));
  editor_->showPopup();
  QWidget* popup = editor_->view()->window();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(popup));
  QImage shot = window.grab().toImage();
  QPainter painter(&shot);
  painter.drawPixmap(popup->mapToGlobal(QPoint()) - window.mapToGlobal(QPoint()), popup->grab());
  painter.end();
  keepScreenshot(shot, QStringLiteral("settings-displays"));
  editor_->hidePopup();
}

}  // namespace
}  // namespace tindra
