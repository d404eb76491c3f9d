// Runs in: private-session --xvfb
// The whole program on a display without a tray: Settings and Quit on the notch's own menu,
// Diagnostics with every provider's check and the report, start at login, and the first start's
// introduction.

#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDoubleSpinBox>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTranslator>
#include <map>
#include <set>

#include "base/diagnostics_log.h"
#include "base/qt_text.h"
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

namespace tindra {
namespace {

bool notchesOfferTheMenu(TindraApp& app) {
  for (NotchWindow* window : app.notches().windows()) {
    if (window->contextMenu() == nullptr) return false;
  }
  return !app.notches().windows().empty();
}

TEST(TrayUnavailableTest, SettingsAndQuitStayReachableFromTheNotch) {
  ASSERT_FALSE(TrayItem::isTrayAvailable());
  TindraApp app({.animated = false});
  EXPECT_FALSE(app.tray().isShown());
  ASSERT_TRUE(notchesOfferTheMenu(app));

  QMenu* menu = app.notches().windows().front()->contextMenu();
  QStringList labels;
  for (QAction* action : menu->actions()) {
    if (!action->isSeparator()) labels << action->text();
  }
  EXPECT_EQ(labels, (QStringList{QStringLiteral("Settings…"), QStringLiteral("Diagnostics…"),
                                 QStringLiteral("Start at Login"), QStringLiteral("Quit Tindra")}));

  // Every provider's start-up check is there; this session has no system bus for UPower.
  app.shell().diagnosticsAction()->trigger();
  ASSERT_NE(app.shell().diagnosticsWindow(), nullptr);
  EXPECT_TRUE(app.shell().diagnosticsWindow()->text().contains(QStringLiteral("no system bus")));
  EXPECT_TRUE(app.shell().diagnosticsWindow()->text().contains(QStringLiteral("media")));
  // "Copy report" puts the versions, the session and the whole log on the clipboard.
  for (QPushButton* button : app.shell().diagnosticsWindow()->findChildren<QPushButton*>()) {
    if (button->text() == QLatin1String("Copy report")) button->click();
  }
  const QString report = QGuiApplication::clipboard()->text();
  EXPECT_TRUE(report.startsWith(QStringLiteral("Tindra " TINDRA_VERSION ", Qt ")))
      << report.toStdString();
  EXPECT_TRUE(report.contains(QStringLiteral("Qt platform xcb")));
  EXPECT_TRUE(report.contains(QStringLiteral("no system bus")));

  // Start at Login is the desktop's autostart entry, there while checked.
  const std::filesystem::path autostart = AutostartEntry::forThisProgram().file();
  EXPECT_TRUE(autostart.string().ends_with("/autostart/com.brenvik.Tindra.desktop"));
  app.shell().startAtLoginAction()->trigger();
  QFile entry(QString::fromStdString(autostart.string()));
  ASSERT_TRUE(entry.open(QIODevice::ReadOnly));
  EXPECT_TRUE(entry.readAll().contains(
      (QStringLiteral("\nExec=\"") + QCoreApplication::applicationFilePath() + u'"').toUtf8()));
  app.shell().startAtLoginAction()->trigger();
  EXPECT_FALSE(std::filesystem::exists(autostart));
  EXPECT_FALSE(app.shell().startAtLoginAction()->isChecked());

  app.shell().settingsAction()->trigger();
  ASSERT_NE(app.shell().settingsWindow(), nullptr);
  EXPECT_TRUE(app.shell().settingsWindow()->isVisible());
  for (const settings::SettingsKeyDescription& key : settings::allKeys()) {
    EXPECT_NE(app.shell().settingsWindow()->editorFor(key.name), nullptr) << key.name;
  }
  // Nothing draws above a Linux screen locker: the switch says so and cannot be turned on, and
  // the details of what it would draw are not listed.
  SettingsWindow& window = *app.shell().settingsWindow();
  if (qEnvironmentVariableIsSet("TINDRA_SCREENSHOTS")) {
    for (std::size_t page = 0; page < settingsPages().size(); ++page) {
      window.showPage(static_cast<int>(page));
      keepScreenshot(window.grab().toImage(), QStringLiteral("settings-page-%1").arg(page));
    }
    window.showPage(0);
  }
  EXPECT_FALSE(window.editorFor(settings::experimentalLockScreen.name)->isEnabled());
  EXPECT_TRUE(window.editorFor(settings::lockScreenStyle.name)->isHidden());
  EXPECT_TRUE(window.editorFor(settings::lockWidgetOffset.name)->isHidden());
  EXPECT_TRUE(window.editorFor(settings::experimentalCallNotices.name)->isEnabled());
}

// Without a system bus there is no battery and no keyboard light to be found: Settings says so
// where the user looks for them, and says it as soon as the light is looked for.
TEST(SettingsHereTest, SaysWhatThisComputerLacks) {
  TindraApp app({.animated = false});
  ASSERT_TRUE(app.settings().write(settings::experimentalKeyboardBacklight, false));
  app.shell().openSettings();
  SettingsWindow& window = *app.shell().settingsWindow();
  const auto shown = [&](const QString& text) {
    for (const QLabel* label : window.findChildren<QLabel*>()) {
      if (label->text() == text && !label->isHidden()) return true;
    }
    return false;
  };
  const QString noBattery =
      QStringLiteral("This computer has no battery, so there is nothing to show here.");
  const QString noLight =
      QStringLiteral("No keyboard backlight that Tindra can control was found on this computer.");
  EXPECT_TRUE(shown(noBattery));
  EXPECT_FALSE(shown(noLight));  // not looked for while off
  ASSERT_TRUE(app.settings().write(settings::experimentalKeyboardBacklight, true));
  EXPECT_TRUE(QTest::qWaitFor([&] { return shown(noLight); }, 3000));
  EXPECT_TRUE(app.settings().read(settings::experimentalKeyboardBacklight));
  window.showPage(settingsPageOf(settings::experimentalKeyboardBacklight.name));
  keepScreenshot(window.grab().toImage(), QStringLiteral("settings-keyboard-light"));
  ASSERT_TRUE(app.settings().write(settings::experimentalKeyboardBacklight, false));
}

TEST(OnboardingTest, ShowsOnTheFirstStartWithWhatWasFoundAndNeverAgain) {
  {
    // Quitting from the menu while it shows is no answer to it.
    TindraApp app({.animated = false, .welcome = true});
    ASSERT_NE(app.onboarding(), nullptr);
    QTimer::singleShot(0, app.shell().quitAction(), &QAction::trigger);
    QTimer stuck;
    QObject::connect(&stuck, &QTimer::timeout, [] { QCoreApplication::exit(1); });
    stuck.start(5000);
    EXPECT_EQ(QCoreApplication::exec(), 0) << "the menu's Quit did not quit";
    EXPECT_FALSE(app.settings().read(settings::onboardingCompleted));
  }
  {
    TindraApp app({.animated = false, .welcome = true});
    OnboardingWindow* welcome = app.onboarding();
    ASSERT_NE(welcome, nullptr);
    EXPECT_TRUE(welcome->isVisible());
    // This session has no system bus: what that means for the battery is said in a user's
    // words, the bus's own error left to Diagnostics.
    EXPECT_TRUE(welcome->services().contains(
        QStringLiteral("✗  Battery and Bluetooth need the system bus (D-Bus)")))
        << welcome->services().toStdString();
    EXPECT_FALSE(welcome->services().contains(QStringLiteral("system_bus_socket")));
    EXPECT_TRUE(welcome->services().contains(QStringLiteral("Now Playing:")));
    for (QRadioButton* choice : welcome->findChildren<QRadioButton*>()) {
      if (choice->text() == QLatin1String("when you click it")) choice->setChecked(true);
    }
    keepScreenshot(welcome->grab().toImage(), QStringLiteral("onboarding"));
    welcome->close();
    EXPECT_TRUE(app.settings().read(settings::onboardingCompleted));
    EXPECT_EQ(app.settings().read(settings::notchOpeningMode), NotchOpeningMode::click);
  }
  TindraApp again({.animated = false, .welcome = true});
  EXPECT_EQ(again.onboarding(), nullptr);
  EXPECT_EQ(again.settings().read(settings::notchOpeningMode), NotchOpeningMode::click);
}

}  // namespace
}  // namespace tindra
