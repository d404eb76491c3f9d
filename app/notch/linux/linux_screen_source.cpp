#include "notch/linux/linux_screen_source.h"

#include <QGuiApplication>

#include "notch/screen_source_factory.h"

namespace tindra {

std::unique_ptr<ScreenSource> makePlatformScreenSource(QObject* parent) {
  return std::make_unique<LinuxScreenSource>(parent);
}

LinuxScreenSource::LinuxScreenSource(QObject* parent) : ScreenSource(parent) {
  for (QScreen* screen : QGuiApplication::screens()) watch(screen);
  connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](QScreen* screen) {
    watch(screen);
    emit screensChanged();
  });
  connect(qGuiApp, &QGuiApplication::screenRemoved, this, &ScreenSource::screensChanged);
  connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &ScreenSource::screensChanged);
}

void LinuxScreenSource::watch(QScreen* screen) {
  connect(screen, &QScreen::geometryChanged, this, &ScreenSource::screensChanged);
  connect(screen, &QScreen::availableGeometryChanged, this, &ScreenSource::screensChanged);
}

std::uint32_t LinuxScreenSource::idFor(const QString& name) const {
  auto found = ids_.constFind(name);
  if (found != ids_.constEnd()) return *found;
  const auto id = static_cast<std::uint32_t>(ids_.size() + 1);
  ids_.insert(name, id);
  return id;
}

ScreenCoordinates LinuxScreenSource::coordinates() const {
  const QScreen* primary = QGuiApplication::primaryScreen();
  if (primary == nullptr) return {};
  const QRect g = primary->geometry();
  return {static_cast<double>(g.y() + g.height())};
}

std::vector<PlatformScreen> LinuxScreenSource::screens() const {
  const ScreenCoordinates flip = coordinates();
  const QScreen* primary = QGuiApplication::primaryScreen();
  std::vector<PlatformScreen> result;
  for (QScreen* screen : QGuiApplication::screens()) {
    PlatformScreen entry;
    entry.screen = screen;
    entry.candidate.id = idFor(screen->name());
    entry.identity.connector = screen->name().toStdString();
    entry.identity.productName = screen->model().toStdString();
    entry.candidate.isMain = screen == primary;
    entry.candidate.hasHardwareNotch = false;
    entry.descriptor.frame = flip.toCore(screen->geometry());
    entry.descriptor.visibleFrame = flip.toCore(screen->availableGeometry());
    result.push_back(std::move(entry));
  }
  nameScreens(result);
  return result;
}

}  // namespace tindra
