// The Settings window: every key on one page with an editor that fits it, edits through the
// store, outside changes shown, the search and the translations.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDoubleSpinBox>
#include <QFile>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <map>
#include <set>

#include "base/diagnostics_log.h"
#include "base/qt_text.h"
#include "calendar/calendar_texts.h"
#include "notch/notch_screen_manager.h"
#include "notch/notch_window.h"
#include "settings/settings_keys.h"
#include "settings/settings_store.h"
#include "shell/autostart_entry.h"
#include "shell/onboarding_window.h"
#include "shell/pinned_sections_editor.h"
#include "shell/settings_key_texts.h"
#include "shell/settings_pages.h"
#include "shell/settings_window.h"
#include "shell/shell_actions.h"
#include "shell/tray_item.h"
#include "testing/view_shot.h"
#include "tindra_app.h"
#include "tindra_providers.h"

namespace tindra {
namespace {

class SettingsWindowTest : public ::testing::Test {
 protected:
  QTemporaryDir dir_;
  std::filesystem::path file_ = dir_.filePath("settings.json").toStdString();
  SettingsStore store_{file_, [] { return 0.0; }};
  const ViewRegistry views_{TindraProviders::views()};
};

TEST_F(SettingsWindowTest, EveryKeyIsOnExactlyOnePage) {
  std::map<std::string_view, int> pages;
  for (const SettingsPage& page : settingsPages()) {
    for (const std::string_view key : page.keys) {
      EXPECT_NE(settings::describeKey(key), nullptr) << key << " is on a page but not a setting";
      ++pages[key];
    }
  }
  for (const settings::SettingsKeyDescription& key : settings::allKeys()) {
    EXPECT_EQ(pages[key.name], 1) << key.name;
  }
  EXPECT_EQ(settingsPages().size(), 10u);
}

// Pinned sections are ticked and dragged into order; what the file says shows the same way.
TEST_F(SettingsWindowTest, PinnedSectionsAreTickedAndOrdered) {
  SettingsWindow window(store_, views_);
  auto* list = qobject_cast<PinnedSectionsEditor*>(window.editorFor(settings::pinnedWidgets.name));
  ASSERT_NE(list, nullptr);
  ASSERT_EQ(list->count(), 5);                // the five that stay while the notch is open
  list->item(1)->setCheckState(Qt::Checked);  // calendar
  list->item(0)->setCheckState(Qt::Checked);  // media
  EXPECT_EQ(store_.read(settings::pinnedWidgets), (std::vector<std::string>{"media", "calendar"}));
  list->model()->moveRow(QModelIndex(), 1, QModelIndex(), 0);
  EXPECT_EQ(store_.read(settings::pinnedWidgets), (std::vector<std::string>{"calendar", "media"}));

  ASSERT_TRUE(store_.write(settings::pinnedWidgets, std::vector<std::string>{"weather", "hud"}));
  EXPECT_EQ(list->pinned(), std::vector<std::string>{"weather"});
  EXPECT_EQ(list->item(0)->data(Qt::UserRole).toString(), "weather");
}

TEST_F(SettingsWindowTest, EveryDescriptionAndChoiceIsMarkedForTranslation) {
  std::set<std::string_view> marked(settingsKeyTexts().begin(), settingsKeyTexts().end());
  for (const settings::SettingsKeyDescription& key : settings::allKeys()) {
    EXPECT_TRUE(marked.contains(key.description))
        << key.name << ": run scripts/settings-texts after changing the key table";
    for (const std::string_view choice : key.cases) {
      EXPECT_TRUE(settingsValueTexts().contains(choice)) << key.name << ": " << choice;
    }
  }
}

// A word of the description that few others have: its longest.
QString longestWord(std::string_view description) {
  QString longest;
  for (const QString& word :
       toQString(description).split(QRegularExpression(QStringLiteral("\\W+")))) {
    if (word.size() > longest.size()) longest = word;
  }
  return longest;
}

TEST_F(SettingsWindowTest, TheSearchFindsEveryKeyByItsNameAndAWordOfItsDescriptionAndJumpsToIt) {
  SettingsWindow window(store_, views_);
  for (const settings::SettingsKeyDescription& key : settings::allKeys()) {
    window.search(toQString(key.name));
    EXPECT_TRUE(window.isListed(key.name)) << key.name;
    EXPECT_EQ(window.currentPage(), settingsPageOf(key.name)) << key.name;
    const char* here = settingsDescriptionHere(key.name);
    const std::string_view shown = here != nullptr ? std::string_view(here) : key.description;
    window.search(longestWord(shown));
    EXPECT_TRUE(window.isListed(key.name)) << key.name << ": " << shown;
    EXPECT_TRUE(window.isListed(key.name) && window.currentPage() >= 0);
  }
  window.search(QStringLiteral("notch display"));  // every word, in any order
  EXPECT_TRUE(window.isListed(settings::showOnDisplaysWithoutNotch.name));
  EXPECT_FALSE(window.isListed(settings::playSounds.name));
  window.search(QString());
  EXPECT_TRUE(window.isListed(settings::playSounds.name));
}

TEST_F(SettingsWindowTest, NumbersAreOfferedInTheirRange) {
  SettingsWindow window(store_, views_);
  auto* threshold = qobject_cast<QSpinBox*>(window.editorFor(settings::batteryLowThreshold.name));
  ASSERT_NE(threshold, nullptr);
  EXPECT_EQ(threshold->minimum(), 5);
  EXPECT_EQ(threshold->maximum(), 50);
  auto* delay = qobject_cast<QDoubleSpinBox*>(window.editorFor(settings::hoverOpenDelay.name));
  ASSERT_NE(delay, nullptr);
  EXPECT_EQ(delay->maximum(), 2.0);
  for (const settings::SettingsKeyDescription& key : settings::allKeys()) {
    const auto range = settingsRangeOf(key.name);
    const double* fallback = key.defaultValue.asNumber();
    if (range && fallback) {
      EXPECT_TRUE(*fallback >= range->minimum && *fallback <= range->maximum) << key.name;
    }
  }
}

TEST_F(SettingsWindowTest, ResetPageResetsThatPageAlone) {
  SettingsWindow window(store_, views_);
  ASSERT_TRUE(store_.write(settings::playSounds, false));
  ASSERT_TRUE(store_.write(settings::hudDuration, 3.0));
  window.resetPage(settingsPageOf(settings::playSounds.name));
  EXPECT_EQ(store_.stored(settings::playSounds.name), nullptr);
  EXPECT_EQ(store_.read(settings::hudDuration), 3.0);
}

// Every text a person reads goes through Qt's translations; Norwegian Bokmål proves it.
TEST_F(SettingsWindowTest, TheDesktopsLanguageIsUsedWhereTindraHasIt) {
  QTranslator norwegian;
  ASSERT_TRUE(norwegian.load(QLocale(QStringLiteral("nb_NO")), QStringLiteral("tindra"),
                             QStringLiteral("_"), QStringLiteral(":/i18n")));
  QCoreApplication::installTranslator(&norwegian);
  DiagnosticsLog log;
  ShellActions actions(store_, log, views_);
  EXPECT_EQ(actions.settingsAction()->text(), QStringLiteral("Innstillinger…"));
  EXPECT_EQ(actions.quitAction()->text(), QStringLiteral("Avslutt Tindra"));
  EXPECT_EQ(settingsPages().front().title, QStringLiteral("Generelt"));
  SettingsWindow window(store_, views_);
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Tindra-innstillinger"));
  // Texts marked under another context than the code that shows them.
  const auto* pinned =
      qobject_cast<PinnedSectionsEditor*>(window.editorFor(settings::pinnedWidgets.name));
  EXPECT_EQ(pinned != nullptr ? pinned->item(0)->text() : QString(), QStringLiteral("Spilles nå"));
  EXPECT_EQ(CalendarTexts::timeRange(0, 0, true, QLocale()), QStringLiteral("Hele dagen"));
  QCoreApplication::removeTranslator(&norwegian);
  EXPECT_EQ(settingsPages().front().title, QStringLiteral("General"));
}

TEST_F(SettingsWindowTest, KeysThatDoNotApplyHereAreNotListed) {
  SettingsWindow window(store_, views_);
  window.setHidden([](std::string_view name) { return name.starts_with("battery"); });
  EXPECT_TRUE(window.editorFor(settings::batteryLowThreshold.name)->isHidden());
  EXPECT_FALSE(window.editorFor(settings::playSounds.name)->isHidden());
  window.setHidden({});
  EXPECT_FALSE(window.editorFor(settings::batteryLowThreshold.name)->isHidden());
}

// What Tindra keeps for itself is not offered as a preference, and so Reset Page leaves it: a
// reset General page would otherwise bring the introduction back.
TEST_F(SettingsWindowTest, ProgramStateIsNeitherListedNorReset) {
  SettingsWindow window(store_, views_);
  window.setHidden(settingsHiddenHere);
  for (const std::string_view state :
       {settings::onboardingCompleted.name, settings::calendarEventSoundLog.name,
        settings::focusFilterState.name}) {
    EXPECT_FALSE(window.isListed(state)) << state;
  }
  EXPECT_TRUE(window.isListed(settings::gameBundleIdentifiers.name));
  ASSERT_TRUE(store_.write(settings::onboardingCompleted, true));
  ASSERT_TRUE(store_.write(settings::playSounds, false));
  window.resetPage(settingsPageOf(settings::onboardingCompleted.name));
  EXPECT_TRUE(store_.read(settings::onboardingCompleted));
  EXPECT_TRUE(store_.read(settings::playSounds));
}

TEST_F(SettingsWindowTest, EditsGoThroughTheStoreAndOutsideChangesShow) {
  SettingsWindow window(store_, views_);
  // Opening the window writes nothing: defaults stay unstored.
  EXPECT_FALSE(std::filesystem::exists(file_));

  auto* sounds = qobject_cast<QCheckBox*>(window.editorFor(settings::playSounds.name));
  ASSERT_NE(sounds, nullptr);
  EXPECT_TRUE(sounds->isChecked());
  sounds->click();
  EXPECT_FALSE(store_.read(settings::playSounds));
  EXPECT_TRUE(std::filesystem::exists(file_));

  auto* mode = qobject_cast<QComboBox*>(window.editorFor(settings::notchOpeningMode.name));
  ASSERT_NE(mode, nullptr);
  EXPECT_EQ(mode->count(), 3);
  ASSERT_TRUE(store_.write(settings::notchOpeningMode, NotchOpeningMode::pressAndHold));
  EXPECT_EQ(mode->currentText(), QStringLiteral("press and hold"));  // the stored value in words
  ASSERT_TRUE(store_.reset(settings::notchOpeningMode));
  EXPECT_EQ(mode->currentText(), QStringLiteral("hover"));
  mode->setCurrentIndex(1);
  emit mode->activated(1);
  EXPECT_EQ(store_.read(settings::notchOpeningMode), NotchOpeningMode::click);

  // A list edited as JSON text: only a JSON array is written.
  const auto list = settings::calendarExcludedIdentifiers;
  auto* excluded = qobject_cast<QLineEdit*>(window.editorFor(list.name));
  ASSERT_NE(excluded, nullptr);
  EXPECT_EQ(excluded->text(), QStringLiteral("[]"));
  excluded->setText(QStringLiteral("{\"not\": \"a list\"}"));
  emit excluded->editingFinished();
  EXPECT_EQ(store_.stored(list.name), nullptr);
  excluded->setText(QStringLiteral("[\"work\", \"home\"]"));
  emit excluded->editingFinished();
  EXPECT_EQ(store_.read(list), (std::vector<std::string>{"work", "home"}));
}

TEST(SettingsWindowFailureTest, AFailedWriteIsSaidUntilAWriteSucceeds) {
  QTemporaryDir dir;
  // The settings folder cannot be made while a file stands where it should be.
  const QString blocker = dir.filePath("tindra");
  QFile(blocker).open(QIODevice::WriteOnly);
  SettingsStore store(std::filesystem::path(blocker.toStdString()) / "settings.json",
                      [] { return 0.0; });
  const ViewRegistry views(TindraProviders::views());
  SettingsWindow window(store, views);
  EXPECT_TRUE(window.problem().isEmpty());
  qobject_cast<QCheckBox*>(window.editorFor(settings::playSounds.name))->click();
  EXPECT_TRUE(window.problem().contains(QStringLiteral("not saved")))
      << window.problem().toStdString();

  QFile::remove(blocker);
  qobject_cast<QCheckBox*>(window.editorFor(settings::playSounds.name))->click();
  EXPECT_TRUE(window.problem().isEmpty());
}

}  // namespace
}  // namespace tindra
