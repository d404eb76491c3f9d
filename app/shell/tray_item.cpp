#include "shell/tray_item.h"

#include <QPainter>
#include <QPixmap>

#include "notch/notch_shape.h"
#include "settings/settings_keys.h"
#include "shell/shell_actions.h"

namespace tindra {

namespace {

// The notch outline in white, which reads on the dark panels trays sit on.
QIcon trayIcon() {
  QPixmap pixmap(64, 64);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Qt::white, 4));
  painter.drawRoundedRect(QRectF(4, 14, 56, 36), 8, 8);
  NotchShape shape{QRectF(20, 14, 24, 14), 5, 4};
  painter.fillPath(shape.path(), Qt::white);
  return QIcon(pixmap);
}

}  // namespace

TrayItem::TrayItem(SettingsStore& settings, ShellActions& actions, QObject* parent)
    : QObject(parent), settings_(settings) {
  icon_.setIcon(trayIcon());
  icon_.setToolTip(QStringLiteral("Tindra"));
  icon_.setContextMenu(actions.menu());
  connect(&icon_, &QSystemTrayIcon::activated, &actions, [&actions](auto reason) {
    if (reason == QSystemTrayIcon::Trigger) actions.openSettings();
  });
  observation_ = settings_.observe({std::string(settings::showMenuBarIcon.name)},
                                   [this](std::string_view) { update(); });
  update();
}

void TrayItem::update() {
  const bool shown = settings_.read(settings::showMenuBarIcon) && isTrayAvailable();
  icon_.setVisible(shown);
  if (shown == shown_) return;
  shown_ = shown;
  emit shownChanged(shown);
}

}  // namespace tindra
