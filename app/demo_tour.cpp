#include "demo_tour.h"

#include <QCursor>
#include <QGuiApplication>
#include <QLinearGradient>
#include <QPainter>
#include <QScreen>
#include <QWidget>

#include "activity/activity_event.h"
#include "banners/banner_provider.h"
#include "banners/fake_notification_source.h"
#include "base/activity_center.h"
#include "base/provider.h"
#include "focus/focus_filter_state.h"
#include "levels/fake_volume_backend.h"
#include "levels/hud_provider.h"
#include "media/now_playing_view_model.h"
#include "notch/notch_screen_manager.h"
#include "notch/notch_window.h"
#include "power/accessory_provider.h"
#include "power/fake_accessory_backend.h"
#include "settings/settings_keys.h"
#include "tindra_app.h"

namespace tindra {

namespace {

// Stands in for a desktop wallpaper, so the screenshots show the notch over something.
class Backdrop : public QWidget {
 public:
  explicit Backdrop(QScreen* screen) {
    setWindowFlags(Qt::FramelessWindowHint | Qt::WindowStaysOnBottomHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setGeometry(screen->geometry());
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    QLinearGradient sky(0, 0, width(), height());
    sky.setColorAt(0, QColor(0x3a, 0x7b, 0xd5));
    sky.setColorAt(1, QColor(0xc9, 0x6d, 0xd8));
    painter.fillRect(rect(), sky);
    // A top panel, as most desktops have one.
    painter.fillRect(QRect(0, 0, width(), 24), QColor(255, 255, 255, 70));
  }
};

using Key = SystemDefinedKeyEvent::Key;

NotchWindow* firstNotch(TindraApp& app) {
  const std::vector<NotchWindow*> windows = app.notches().windows();
  return windows.empty() ? nullptr : windows.front();
}

}  // namespace

DemoTour::DemoTour(TindraApp& app, QDir folder, QObject* parent)
    : QObject(parent), app_(app), folder_(std::move(folder)) {
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, &DemoTour::next);

  ActivityCenter& activities = app_.activities();
  const auto pointerTo = [this](bool onNotch) {
    NotchWindow* notch = firstNotch(app_);
    if (notch == nullptr) return fail(QStringLiteral("no notch to point at"));
    const QRect window = notch->geometry();
    const QPointF centre = notch->notchRect().center();
    const QPoint target = onNotch ? window.topLeft() + centre.toPoint()
                                  : window.topLeft() + QPoint(window.width() / 2, 400);
    QCursor::setPos(notch->screen(), target);
  };
  NowPlayingViewModel& media = *app_.providers().get<NowPlayingProvider>().viewModel();
  const auto press = [this](Key key, HUDBarStyle style, HUDTint tint) {
    HudProvider& hud = app_.providers().get<HudProvider>();
    (void)app_.settings().write(settings::hudBarStyle, style);
    (void)app_.settings().write(settings::hudTint, tint);
    hud.handleKey({key, true, false, {}, std::chrono::steady_clock::now()});
    hud.handleKey({key, false, false, {}, std::chrono::steady_clock::now()});
  };
  // The invented sound moves to the invented earbuds.
  const auto routeToBuds = [this] {
    if (auto* fake = invented<FakeVolumeBackend>("the output volume")) {
      fake->routeTo(QStringLiteral("invented-buds"), FakeAccessoryBackend::inventedBuds().address);
    }
  };
  // Invented headphones join the earbuds, or leave again.
  const auto headphones = [this](bool connect) {
    auto* fake = invented<FakeAccessoryBackend>("the accessories");
    if (fake == nullptr) return;
    BluetoothAccessory phones{.name = "Invented Headphones",
                              .address = "0a:00:00:00:00:02",
                              .kind = BluetoothAccessoryKind::headphones};
    phones.battery.main = 64;
    fake->setConnected(connect ? std::vector{FakeAccessoryBackend::inventedBuds(), phones}
                               : std::vector{FakeAccessoryBackend::inventedBuds()});
  };
  const auto notify = [this](const DesktopNotification& notification) {
    if (auto* fake = invented<FakeNotificationSource>("the notifications")) {
      fake->send(notification);
    }
  };
  steps_ = {
      {0,
       [this, pointerTo] {
         showBackdrops();
         pointerTo(false);
       }},
      // The fake player is already playing its invented track.
      {700, [this] { shoot(QStringLiteral("1-closed-now-playing.png")); }},
      // Keys step the invented levels, once in each bar style and tint.
      {0, [press] { press(Key::soundUp, HUDBarStyle::continuous, HUDTint::white); }},
      {500, [this] { shoot(QStringLiteral("2-closed-level-continuous.png")); }},
      {0, [press] { press(Key::brightnessUp, HUDBarStyle::segmented, HUDTint::level); }},
      {500, [this] { shoot(QStringLiteral("2-closed-level-segmented.png")); }},
      {0, [press] { press(Key::soundDown, HUDBarStyle::ring, HUDTint::accent); }},
      {500, [this] { shoot(QStringLiteral("2-closed-level-ring.png")); }},
      // Opened while the level lasts, it is shown large beside the rest.
      {0, [pointerTo] { pointerTo(true); }},
      {700, [this] { shoot(QStringLiteral("3-opened-level.png")); }},
      // The level lapses after 1.5 s; the panel goes on without it.
      {1500, [this] { shoot(QStringLiteral("4-opened.png")); }},
      {0, [&media] { media.togglePlayPause(); }},
      {400, [this] { shoot(QStringLiteral("5-opened-paused.png")); }},
      {0, [pointerTo] { pointerTo(false); }},
      {900, [this] { shoot(QStringLiteral("6-closed-paused.png")); }},
      {0, [&activities] { activities.reset(); }},
      {600, [this] { shoot(QStringLiteral("7-closed-after-reset.png")); }},
      // The sound moves to the invented earbuds; then headphones connect, their battery drawn
      // as a ring.
      {0,
       [this, routeToBuds] {
         (void)app_.settings().write(settings::accessoryBatteryStyle, AccessoryBatteryStyle::ring);
         routeToBuds();
       }},
      {600, [this] { shoot(QStringLiteral("7a-closed-accessory-route.png")); }},
      {0, [headphones] { headphones(true); }},
      {600, [this] { shoot(QStringLiteral("7b-closed-accessory-ring.png")); }},
      {0,
       [this, headphones, &activities] {
         headphones(false);
         (void)app_.settings().write(settings::accessoryBatteryStyle,
                                     AccessoryBatteryStyle::percentage);
         activities.reset();
       }},
      // The invented calendars (a design review with a Zoom link eight minutes away) and the
      // invented weather.
      {0,
       [this] {
         (void)app_.settings().write(settings::calendarEnabled, true);
         (void)app_.settings().write(settings::weatherEnabled, true);
       }},
      {700, [this] { shoot(QStringLiteral("8-closed-meeting.png")); }},
      {0, [pointerTo] { pointerTo(true); }},
      {900, [this] { shoot(QStringLiteral("9-opened-meeting.png")); }},
      // A Focus named by `tindra focus on --name "Deep Work" --symbol book`.
      {0,
       [this, pointerTo] {
         pointerTo(false);
         (void)app_.settings().write(
             settings::focusFilterState,
             FocusFilterState(true, "Deep Work", FocusSymbol::book, 0).encoded());
       }},
      {700, [this] { shoot(QStringLiteral("10-closed-focus.png")); }},
      // An invented chat message, then an invented ringing call.
      {2500,
       [this, notify] {
         (void)app_.settings().write(settings::experimentalMessageNotices, true);
         (void)app_.settings().write(settings::experimentalCallNotices, true);
         notify({.id = 1,
                 .appName = "Chat",
                 .summary = "Ana Lindqvist",
                 .body = "Running five minutes late, <b>start without me</b>",
                 .category = "im.received"});
       }},
      {600, [this] { shoot(QStringLiteral("11-closed-message.png")); }},
      {0, [pointerTo] { pointerTo(true); }},
      {900, [this] { shoot(QStringLiteral("12-opened-message.png")); }},
      {0,
       [pointerTo, notify] {
         pointerTo(false);
         notify({.id = 2,
                 .appName = "Phone",
                 .summary = "Ana Lindqvist",
                 .category = "call.incoming"});
       }},
      {900, [this] { shoot(QStringLiteral("13-closed-call.png")); }},
  };
}

DemoTour::~DemoTour() = default;

void DemoTour::start() {
  folder_.mkpath(QStringLiteral("."));
  position_ = 0;
  timer_.start(steps_.empty() ? 0 : steps_.front().waitMs);
}

void DemoTour::next() {
  if (position_ >= steps_.size()) {
    emit finished(shots_, ok_);
    return;
  }
  steps_[position_].run();
  ++position_;
  timer_.start(position_ < steps_.size() ? steps_[position_].waitMs : 0);
}

void DemoTour::showBackdrops() {
  for (QScreen* screen : QGuiApplication::screens()) {
    auto backdrop = std::make_unique<Backdrop>(screen);
    backdrop->show();
    backdrops_.push_back(std::move(backdrop));
  }
  for (NotchWindow* notch : app_.notches().windows()) notch->raise();
}

void DemoTour::fail(const QString& why) {
  qCritical().noquote() << "demo step" << position_ << "failed:" << why;
  ok_ = false;
}

void DemoTour::shoot(const QString& name) {
  NotchWindow* notch = firstNotch(app_);
  if (notch == nullptr || notch->screen() == nullptr) {
    fail(QStringLiteral("no notch on screen for %1").arg(name));
    return;
  }
  // The root window holds what the display shows, transparency around the notch included.
  const QRect area = notch->geometry().adjusted(-48, 0, 48, 24) & notch->screen()->geometry();
  const QPixmap picture =
      notch->screen()->grabWindow(0, area.x(), area.y(), area.width(), area.height());
  const QString path = folder_.absoluteFilePath(name);
  if (picture.isNull() || !picture.save(path)) {
    fail(QStringLiteral("%1 could not be taken").arg(path));
    return;
  }
  shots_ << path;
}

}  // namespace tindra
