#include "levels/linux/sysfs_backlight_backend.h"

#include <QDBusMessage>
#include <QDir>
#include <QFile>
#include <algorithm>
#include <cmath>

#include "base/logging_categories.h"

namespace tindra {

namespace {

const QString logind = QStringLiteral("org.freedesktop.login1");

std::optional<int> readNumber(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
  bool ok = false;
  const int value = file.readAll().trimmed().toInt(&ok);
  return ok ? std::optional(value) : std::nullopt;
}

int typeRank(const QString& deviceFolder) {
  QFile file(deviceFolder + QStringLiteral("/type"));
  const QByteArray type = file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
  if (type == "firmware") return 0;
  if (type == "platform") return 1;
  return 2;
}

}  // namespace

SysfsBacklightBackend::SysfsBacklightBackend(QString folder, QDBusConnection systemBus,
                                             QObject* parent)
    : BacklightBackend(parent), folder_(std::move(folder)), logind_(std::move(systemBus), logind) {
  connect(&logind_, &DBusServiceFollower::appeared, this, [this] {
    setAccess(BrightnessAccess::readWrite, DiagnosticsLog::Outcome::ok,
              Sentence(QT_TR_NOOP("%1, set through logind"), tr).arg(device_));
  });
  const auto withoutLogind = [this] {
    setAccess(BrightnessAccess::readOnly, DiagnosticsLog::Outcome::degraded,
              Sentence(QT_TR_NOOP("%1 is shown; logind is not running, so the brightness keys "
                                  "stay with the desktop"),
                       tr)
                  .arg(device_));
  };
  connect(&logind_, &DBusServiceFollower::missing, this, withoutLogind);
  connect(&logind_, &DBusServiceFollower::vanished, this, withoutLogind);
  connect(&watcher_, &QFileSystemWatcher::fileChanged, this, [this](const QString& path) {
    // A file replaced rather than rewritten drops out of the watch.
    if (!watcher_.files().contains(path) && QFile::exists(path)) watcher_.addPath(path);
    read();
  });
}

QString SysfsBacklightBackend::pickDevice(const QString& folder) {
  QStringList devices = QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
  std::ranges::stable_sort(devices, {},
                           [&](const QString& device) { return typeRank(folder + u'/' + device); });
  return devices.isEmpty() ? QString() : devices.front();
}

void SysfsBacklightBackend::start() {
  device_ = pickDevice(folder_);
  const QString path = folder_ + u'/' + device_;
  maximum_ =
      device_.isEmpty() ? 0 : readNumber(path + QStringLiteral("/max_brightness")).value_or(0);
  if (maximum_ <= 0) {
    setAccess(
        BrightnessAccess::unavailable, DiagnosticsLog::Outcome::degraded,
        Sentence(
            QT_TR_NOOP("no display backlight in %1: the brightness keys stay with the desktop"), tr)
            .arg(folder_));
    return;
  }
  // brightness changes on every write through sysfs; actual_brightness is the file the kernel
  // announces hotkey changes on.
  watcher_.addPaths(
      {path + QStringLiteral("/brightness"), path + QStringLiteral("/actual_brightness")});
  read();
  // Shown at once; set only once logind is known to be there.
  setAccess(
      BrightnessAccess::readOnly, DiagnosticsLog::Outcome::ok,
      Sentence(QT_TR_NOOP("%1 is shown; asking whether logind runs to set it"), tr).arg(device_));
  logind_.start();
}

void SysfsBacklightBackend::read() {
  const QString path = folder_ + u'/' + device_;
  std::optional<int> value = readNumber(path + QStringLiteral("/actual_brightness"));
  if (!value) value = readNumber(path + QStringLiteral("/brightness"));
  if (value) {
    publish(BacklightReading{device_, std::clamp(*value / double(maximum_), 0.0, 1.0), false});
  } else {
    forgetReading();
  }
}

void SysfsBacklightBackend::setLevel(double level) {
  if (access() != BrightnessAccess::readWrite) return;
  // Never all the way to 0: many panels switch off there, and a dark screen is no place to
  // find the key again.
  const auto value =
      static_cast<uint>(std::max(1L, std::lround(std::clamp(level, 0.0, 1.0) * maximum_)));
  QDBusMessage call = QDBusMessage::createMethodCall(
      logind, QStringLiteral("/org/freedesktop/login1/session/auto"),
      QStringLiteral("org.freedesktop.login1.Session"), QStringLiteral("SetBrightness"));
  call << QStringLiteral("backlight") << device_ << value;
  logind_.call(call, [this, level](const QDBusMessage& answer) {
    if (answer.type() == QDBusMessage::ErrorMessage) {
      qCWarning(lcHud).noquote() << "logind did not set the brightness:" << answer.errorMessage();
      setAccess(BrightnessAccess::readOnly, DiagnosticsLog::Outcome::degraded,
                Sentence(QT_TR_NOOP("%1 is shown; logind refused to set it (%2), so the "
                                    "brightness keys stay with the desktop"),
                         tr)
                    .arg(device_, answer.errorName()));
      return;
    }
    read();
    emit writeFinished(level, reading() ? reading()->level : 0);
  });
}

}  // namespace tindra
