// Runs in: private-session --xvfb --tray-host
// The whole program where a StatusNotifierItem host exists: the tray item registers and the notch
// offers the menu only while the item is hidden.

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

// The items registered with the mocked StatusNotifierWatcher.
QStringList registeredTrayItems() {
  QDBusMessage call = QDBusMessage::createMethodCall(
      QStringLiteral("org.kde.StatusNotifierWatcher"), QStringLiteral("/StatusNotifierWatcher"),
      QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
  call << QStringLiteral("org.kde.StatusNotifierWatcher")
       << QStringLiteral("RegisteredStatusNotifierItems");
  const QDBusMessage reply = QDBusConnection::sessionBus().call(call);
  if (reply.arguments().isEmpty()) return {};
  return reply.arguments().first().value<QDBusVariant>().variant().toStringList();
}

TEST(TrayAvailableTest, TheItemRegistersAndTheNotchKeepsItsMenuOnlyWhileItIsHidden) {
  ASSERT_TRUE(TrayItem::isTrayAvailable());
  TindraApp app({.animated = false});
  EXPECT_TRUE(app.tray().isShown());
  EXPECT_FALSE(notchesOfferTheMenu(app));
  EXPECT_TRUE(QTest::qWaitFor([] { return registeredTrayItems().size() == 1; }, 3000));

  // Turning the icon off must not strand Settings and Quit.
  ASSERT_TRUE(app.settings().write(settings::showMenuBarIcon, false));
  EXPECT_FALSE(app.tray().isShown());
  EXPECT_TRUE(notchesOfferTheMenu(app));
  ASSERT_TRUE(app.settings().write(settings::showMenuBarIcon, true));
  EXPECT_TRUE(app.tray().isShown());
  EXPECT_FALSE(notchesOfferTheMenu(app));
}

}  // namespace
}  // namespace tindra
