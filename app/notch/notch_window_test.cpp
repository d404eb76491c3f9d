// Runs in: private-session --xvfb
// The notch on real X displays (Xvfb): drawn where its geometry says, closed and opened, cut out
// around its outline so the desktop shows through, opened by the pointer resting on it, and
// following a RandR monitor that comes and goes.
#include "notch/notch_window.h"

#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include <QCursor>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QPainter>
#include <QProcess>
#include <QQuickItem>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>
#include <cstring>
#include <functional>
#include <random>

#include "base/activity_center.h"
#include "base/diagnostics_log.h"
#include "notch/display_change_log.h"
#include "notch/notch_screen_manager.h"
#include "notch/screen_source_factory.h"
#include "settings/settings_keys.h"
#include "testing/notch_displays.h"
#include "testing/restart_drill.h"
#include "testing/sample_view_models.h"
#include "testing/skip_or_fail_on_ci.h"
#include "testing/view_shot.h"
#include "testing/xdotool.h"
#include "views/notch_content.h"

namespace tindra {
namespace {

TEST(NotchWindowOnDisplayTest, DrawnWhereItsGeometrySaysClosedAndOpened) {
  Displays displays;
  ASSERT_EQ(displays.manager_->windows().size(), 1u);
  NotchWindow& window = *displays.manager_->windows().front();
  const QRect screen = window.screen()->geometry();
  // Xvfb has no panel, so the drawn notch takes the 24-point fallback, 190 wide, centred.
  const QRect closed(screen.center().x() + 1 - 95, 0, 190, 24);
  EXPECT_EQ(window.notchRect().translated(window.geometry().topLeft()).toRect(), closed);
  const QImage idle = grabDisplay();
  expectDrawnAt(idle, closed, "closed, idle");
  EXPECT_EQ(qGray(idle.pixel(closed.center())), 0);

  // An activity grows the compact view beside the notch.
  displays.activities_.offer(ActivityEvent::began(ActivityKind::nowPlaying));
  QTest::qWait(150);
  const int ears = static_cast<int>(NotchWindowLayout::earWidth);
  expectDrawnAt(grabDisplay(), closed.adjusted(-ears, 0, ears, 0), "closed, now playing");

  window.open();
  QTest::qWait(150);
  const QSize panel = window.layout().panelSize.toSize();
  const QRect opened(closed.center().x() + 1 - panel.width() / 2, 0, panel.width(), panel.height());
  expectDrawnAt(grabDisplay(), opened, "opened");

  window.close();
  QTest::qWait(150);
  expectDrawnAt(grabDisplay(), closed.adjusted(-ears, 0, ears, 0), "closed again");
}

// At rest the closed notch is drawn without QML. A compact view written in QML, the pointer
// coming onto the notch and the notch opening each make the QML scene; it is let go once nothing
// has needed it for the time it is kept.
TEST(NotchWindowOnDisplayTest, TheQmlSceneIsMadeOnlyWhileSomethingNeedsIt) {
  SampleViewModels samples;  // outlives the views that show it
  Displays displays;
  displays.views_.setModel(QStringLiteral("media"), &samples.media);
  displays.views_.setModel(QStringLiteral("focus"), &samples.focus);
  displays.content_.refresh();
  NotchWindow& window = *displays.manager_->windows().front();
  window.setSceneKept(std::chrono::milliseconds(300));
  const QPoint notch = window.geometry().topLeft() + window.notchRect().center().toPoint();
  QCursor::setPos(window.screen(), notch + QPoint(0, 400));
  const auto sceneGoes = [&] { return QTest::qWaitFor([&] { return !window.sceneRoot(); }, 3000); };
  ASSERT_TRUE(sceneGoes());

  displays.activities_.offer(ActivityEvent::began(ActivityKind::nowPlaying));  // drawn in C++
  QTest::qWait(150);
  EXPECT_EQ(window.sceneRoot(), nullptr);
  const int ears = static_cast<int>(NotchWindowLayout::earWidth);
  expectDrawnAt(grabDisplay(),
                window.notchRect()
                    .translated(window.geometry().topLeft())
                    .toRect()
                    .adjusted(-ears, 0, ears, 0),
                "closed, now playing, no scene");

  displays.activities_.offer(ActivityEvent::began(ActivityKind::focus));  // written in QML
  EXPECT_NE(window.sceneRoot(), nullptr) << "a compact view written in QML";
  displays.activities_.offer(ActivityEvent::ended(ActivityKind::focus));
  EXPECT_TRUE(sceneGoes()) << "the QML compact view gone";

  QCursor::setPos(window.screen(), notch);
  EXPECT_TRUE(QTest::qWaitFor([&] { return window.sceneRoot() != nullptr; }, 1000))
      << "the pointer on the notch";
  QCursor::setPos(window.screen(), notch + QPoint(0, 400));
  EXPECT_TRUE(sceneGoes()) << "the pointer gone";

  window.open();
  ASSERT_NE(window.sceneRoot(), nullptr);
  QTest::qWait(500);  // longer than the scene is kept
  EXPECT_NE(window.sceneRoot(), nullptr) << "kept while open";
  window.close();
  EXPECT_TRUE(sceneGoes()) << "closed";
}

// Whether the compositor is asked to blur behind `window` (KWin's property).
bool blursBehind(QWindow& window) {
  xcb_connection_t* x = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
  constexpr const char* name = "_KDE_NET_WM_BLUR_BEHIND_REGION";
  xcb_intern_atom_reply_t* atom =
      xcb_intern_atom_reply(x, xcb_intern_atom(x, 0, std::strlen(name), name), nullptr);
  xcb_get_property_reply_t* property = xcb_get_property_reply(
      x, xcb_get_property(x, 0, window.winId(), atom->atom, XCB_ATOM_CARDINAL, 0, 16), nullptr);
  const bool set = property != nullptr && property->type == XCB_ATOM_CARDINAL;
  std::free(property);
  std::free(atom);
  return set;
}

// The aura takes the activity's colour just inside the outline, and glass lightens the opened
// notch; each only while its setting is on.
TEST(NotchWindowOnDisplayTest, TheAuraAndTheGlassFollowTheirSettings) {
  Displays displays;
  SettingsStore& settings = displays.store_;
  ASSERT_TRUE(settings.write(settings::auraFlashOnOpen, false));
  NotchWindow& window = *displays.manager_->windows().front();
  displays.activities_.offer(ActivityEvent::began(ActivityKind::nowPlaying));
  const QPoint origin = window.geometry().topLeft();
  const auto edge = [&] {  // just inside the bottom edge, in the middle
    const QRectF body = window.shapeRect();
    return origin + QPoint(body.center().x(), body.bottom() - 1);
  };
  const auto isAccent = [](QColor c) { return c.red() > 90 && c.red() > 2 * c.green(); };
  // Each change shows with the next frame; on a busy machine that may take a moment.
  const auto shows = [](const std::function<bool(const QImage&)>& drawn) {
    return QTest::qWaitFor([&] { return drawn(grabDisplay()); }, 3000);
  };
  const QRect top(0, 0, grabDisplay().width(), 220);

  EXPECT_TRUE(shows([&](const QImage& shot) { return isAccent(shot.pixelColor(edge())); }));
  keepScreenshot(grabDisplay().copy(top), QStringLiteral("notch-rim"));
  ASSERT_TRUE(settings.write(settings::auraRimWhenClosed, false));
  EXPECT_TRUE(shows([&](const QImage& shot) { return qGray(shot.pixel(edge())) == 0; }));

  window.open();
  EXPECT_TRUE(shows([&](const QImage& shot) { return isAccent(shot.pixelColor(edge())); }));
  keepScreenshot(grabDisplay().copy(top), QStringLiteral("notch-glow"));
  const QPoint inside = origin + window.shapeRect().center().toPoint() + QPoint(0, 20);
  EXPECT_EQ(qGray(grabDisplay().pixel(inside)), 0);
  ASSERT_TRUE(settings.write(settings::auraGlowWhenOpen, false));
  ASSERT_TRUE(settings.write(settings::glassBackground, true));
  EXPECT_TRUE(blursBehind(window));
  EXPECT_TRUE(shows([&](const QImage& shot) {
    return !isAccent(shot.pixelColor(edge())) && qGray(shot.pixel(inside)) > 10;
  }));
  keepScreenshot(grabDisplay().copy(top), QStringLiteral("notch-glass"));
  ASSERT_TRUE(settings.write(settings::glassBackground, false));
  EXPECT_FALSE(blursBehind(window));
}

// The sections the opened notch draws, by their views' file names: every one of them whole.
QStringList drawnSections(NotchWindow& window) {
  auto* row = window.sceneRoot()->findChild<QQuickItem*>(QStringLiteral("sectionRow"));
  QStringList drawn;
  for (QQuickItem* child : row->childItems()) {
    const QUrl source = child->property("source").toUrl();
    if (!child->isVisible() || source.isEmpty()) continue;
    EXPECT_LE(child->x() + child->width(), row->width()) << source.toString().toStdString();
    drawn << source.fileName();
  }
  return drawn;
}

// More sections than the panel holds: those that do not fit whole are left out, and the one of
// the activity on show gets its room first.
TEST(NotchWindowOnDisplayTest, SectionsThatDoNotFitWholeAreLeftOutTheActivitysFirst) {
  Displays displays;
  SampleViewModels samples;
  for (const auto& [provider, model] : samples.byProvider()) {
    if (provider != "hud" && provider != "banners") displays.views_.setModel(provider, model);
  }
  displays.content_.refresh();
  NotchWindow& window = *displays.manager_->windows().front();
  window.open();

  displays.activities_.offer(ActivityEvent::began(ActivityKind::nowPlaying));
  QTest::qWait(150);
  const QStringList playing = drawnSections(window);
  EXPECT_TRUE(playing.contains("MediaPanel.qml")) << playing.join(' ').toStdString();
  EXPECT_LT(playing.size(), 6);  // six have something to show; they cannot all fit

  displays.activities_.offer(ActivityEvent::began(ActivityKind::upcomingEvent));
  // The panel is laid out again on the next frames; a loaded machine takes longer.
  (void)QTest::qWaitFor([&] { return drawnSections(window).contains("CalendarPanel.qml"); }, 3000);
  const QStringList meeting = drawnSections(window);
  EXPECT_TRUE(meeting.contains("CalendarPanel.qml")) << meeting.join(' ').toStdString();
  keepScreenshot(grabDisplay().copy(0, 0, grabDisplay().width(), 220),
                 QStringLiteral("notch-sections"));
}

TEST(NotchWindowOnDisplayTest, OpensWhenThePointerRestsAndClosesWhenItLeaves) {
  Displays displays;
  NotchWindow& window = *displays.manager_->windows().front();
  const QPoint notch = window.geometry().topLeft() + window.notchRect().center().toPoint();
  QCursor::setPos(window.screen(), notch + QPoint(0, 300));
  QTest::qWait(100);
  ASSERT_FALSE(window.isExpanded());

  QCursor::setPos(window.screen(), notch);
  EXPECT_TRUE(QTest::qWaitFor([&] { return window.isExpanded(); }, 3000));
  QCursor::setPos(window.screen(), notch + QPoint(0, 400));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isExpanded(); }, 3000));

  // In click mode resting is not enough; a click opens it.
  ASSERT_TRUE(displays.store_.write(settings::notchOpeningMode, NotchOpeningMode::click));
  QCursor::setPos(window.screen(), notch);
  QTest::qWait(500);
  EXPECT_FALSE(window.isExpanded());
  const QPoint local = window.notchRect().center().toPoint();
  QTest::mousePress(&window, Qt::LeftButton, {}, local);
  QTest::mouseRelease(&window, Qt::LeftButton, {}, local);
  EXPECT_TRUE(QTest::qWaitFor([&] { return window.isExpanded(); }, 1000));
}

// The first enabled mouse area of the opened panel below the camera area: a control. Loaded
// views are the visual children of their loaders, not their QObject children.
QQuickItem* controlIn(NotchWindow& window, QQuickItem* item = nullptr) {
  if (item == nullptr) item = window.sceneRoot();
  if (!item->isVisible() || !item->isEnabled()) return nullptr;
  const QPointF centre = item->mapToScene(item->boundingRect().center());
  // A mouse area's own `enabled` is not the item's.
  if (item->inherits("QQuickMouseArea") && item->property("enabled").toBool() &&
      window.shapeRect().contains(centre) && centre.y() > window.notchRect().bottom()) {
    return item;
  }
  for (QQuickItem* child : item->childItems()) {
    if (QQuickItem* found = controlIn(window, child)) return found;
  }
  return nullptr;
}

// The first control of the opened panel that is drawn grey: one the player cannot do now.
QQuickItem* greyedControlIn(QQuickItem* item) {
  if (!item->isVisible()) return nullptr;
  if (const QVariant available = item->property("available");
      available.isValid() && !available.toBool()) {
    return item;
  }
  for (QQuickItem* child : item->childItems()) {
    if (QQuickItem* found = greyedControlIn(child)) return found;
  }
  return nullptr;
}

// Put away by a swipe up, a click where no control is or (when asked) a drag up, the opened
// notch stays closed under the pointer and opens again only once the pointer has left and come
// back. Controls keep their clicks and drags.
TEST(NotchWindowOnDisplayTest, PutAwayItStaysClosedUntilThePointerLeavesAndComesBack) {
  SampleViewModels samples;  // outlives the views that show it
  NowPlayingSnapshot track;
  track.title = "Invented Track";
  track.isPlaying = true;
  track.capabilities = NowPlayingCapabilities::playPause();  // a button to press
  samples.media.setSnapshot(track);
  Displays displays;
  displays.views_.setModel(QStringLiteral("media"), &samples.media);
  displays.content_.refresh();
  displays.activities_.offer(ActivityEvent::began(ActivityKind::nowPlaying));
  NotchWindow& window = *displays.manager_->windows().front();
  const QPoint camera = window.notchRect().center().toPoint();  // empty once opened
  const QPoint notch = window.geometry().topLeft() + camera;
  const auto opens = [&] { return QTest::qWaitFor([&] { return window.isExpanded(); }, 3000); };
  const auto staysClosed = [&] {
    QTest::qWait(400);                                       // well past the opening delay
    QCursor::setPos(window.screen(), notch + QPoint(3, 0));  // still on the notch
    QTest::qWait(400);
    return !window.isExpanded();
  };
  const auto leaveAndReturn = [&] {
    QCursor::setPos(window.screen(), notch + QPoint(0, 400));
    QTest::qWait(200);
    QCursor::setPos(window.screen(), notch);
  };
  leaveAndReturn();  // from wherever an earlier test left the pointer
  ASSERT_TRUE(opens());

  ASSERT_TRUE(QTest::qWaitFor([&] { return window.openProgress() == 1; }, 3000));
  QQuickItem* control = controlIn(window);
  ASSERT_NE(control, nullptr) << drawnSections(window).join(' ').toStdString();
  const QPoint onControl = control->mapToScene(control->boundingRect().center()).toPoint();
  QCursor::setPos(window.screen(), window.geometry().topLeft() + onControl);
  QTest::mouseClick(&window, Qt::LeftButton, {}, onControl);
  QTest::qWait(400);
  EXPECT_TRUE(window.isExpanded()) << "a click on a control";
  // The player can only play and pause: the other buttons are grey, and a click that meant one
  // of them is no click on the empty area.
  QQuickItem* greyed = greyedControlIn(window.sceneRoot());
  ASSERT_NE(greyed, nullptr);
  const QPoint onGreyed = greyed->mapToScene(greyed->boundingRect().center()).toPoint();
  QCursor::setPos(window.screen(), window.geometry().topLeft() + onGreyed);
  QTest::mouseClick(&window, Qt::LeftButton, {}, onGreyed);
  QTest::qWait(400);
  EXPECT_TRUE(window.isExpanded()) << "a click on a greyed control";

  QCursor::setPos(window.screen(), notch);
  QTest::mouseClick(&window, Qt::LeftButton, {}, camera);
  EXPECT_TRUE(staysClosed()) << "a click on the empty area";
  leaveAndReturn();
  EXPECT_TRUE(opens());

  // The wheel down is a swipe up on a touchpad.
  xdotool({"mousemove", QString::number(notch.x()), QString::number(notch.y()), "click", "5"});
  EXPECT_TRUE(staysClosed()) << "a swipe up";
  leaveAndReturn();
  EXPECT_TRUE(opens());

  // A drag up from the empty edge below the sections is a click gone astray unless mouse drags
  // are gestures; then it puts the notch away.
  const QPoint edge(camera.x(), static_cast<int>(window.shapeRect().bottom()) - 6);
  const auto dragUp = [&] {
    QTest::mousePress(&window, Qt::LeftButton, {}, edge);
    QTest::mouseMove(&window, edge - QPoint(0, 40));
    QTest::mouseRelease(&window, Qt::LeftButton, {}, edge - QPoint(0, 80));
  };
  dragUp();
  QTest::qWait(200);
  EXPECT_TRUE(window.isExpanded()) << "a drag up with mouse drags off";
  ASSERT_TRUE(displays.store_.write(settings::mouseDragGestures, true));
  dragUp();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isExpanded(); }, 1000)) << "a drag up";

  // The press held until the notch opens is no click on the opened notch.
  ASSERT_TRUE(displays.store_.write(settings::notchOpeningMode, NotchOpeningMode::pressAndHold));
  QTest::mousePress(&window, Qt::LeftButton, {}, camera);
  EXPECT_TRUE(opens());
  QTest::mouseRelease(&window, Qt::LeftButton, {}, camera);
  QTest::qWait(300);
  EXPECT_TRUE(window.isExpanded()) << "released after pressing and holding";
}

TEST(NotchWindowOnDisplayTest, StretchesWhilePulledAndOpensForAFileDragInAnyMode) {
  Displays displays;
  ASSERT_TRUE(displays.store_.write(settings::notchOpeningMode, NotchOpeningMode::click));
  NotchWindow& window = *displays.manager_->windows().front();
  const QRectF rest = window.shapeRect();
  const QPoint centre = window.notchRect().center().toPoint();

  // A full pull grows the notch by the stretch's largest amount; letting go outside it springs
  // back without opening.
  QTest::mousePress(&window, Qt::LeftButton, {}, centre);
  QTest::mouseMove(&window, centre + QPoint(0, 80));
  EXPECT_NEAR(window.shapeRect().width(), rest.width() * 1.12, 0.5);
  EXPECT_NEAR(window.shapeRect().height(), rest.height() * 1.24, 0.5);
  EXPECT_NEAR(window.shapeRect().center().x(), rest.center().x(), 0.5);
  QTest::mouseRelease(&window, Qt::LeftButton, {}, centre + QPoint(0, 80));
  EXPECT_EQ(window.shapeRect(), rest);
  EXPECT_FALSE(window.isExpanded());

  // Files dragged over the closed notch open it even in click mode, and leaving closes it.
  QMimeData files;
  files.setUrls({QUrl::fromLocalFile(QStringLiteral("/tmp/report.pdf"))});
  QDragEnterEvent enter(centre, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&window, &enter);
  EXPECT_TRUE(enter.isAccepted());
  EXPECT_TRUE(QTest::qWaitFor([&] { return window.isExpanded(); }, 3000));
  QDragLeaveEvent leave;
  QCoreApplication::sendEvent(&window, &leave);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isExpanded(); }, 3000));
}

// A second monitor unplugged and plugged in again (a RandR monitor removed and added beside the
// first, each time of another width): each time there is one notch per display again, at the top
// of the monitor as it is now.
TEST(NotchWindowOnDisplayTest, FollowsAMonitorUnpluggedAndPluggedInAgain) {
  const auto xrandr = [](const QStringList& arguments) {
    return QProcess::execute("xrandr", arguments) == 0;
  };
  std::mt19937 random(std::random_device{}());
  QRect second(1920, 0, 1280, 800);
  const auto plugIn = [&] {
    return xrandr({"--setmonitor", "RIGHT",
                   QStringLiteral("%1/300x%2/200+%3+0")
                       .arg(second.width())
                       .arg(second.height())
                       .arg(second.x()),
                   "none"});
  };
  if (!plugIn()) SKIP_OR_FAIL_ON_CI("xrandr cannot add a monitor to this X server");
  Displays displays;
  DiagnosticsLog diagnostics;
  DisplayChangeLog changes(*displays.screens_, diagnostics);
  const auto notchesRight = [&] {
    const auto windows = displays.manager_->windows();
    if (windows.size() != 2 || QGuiApplication::screens().size() != 2) return false;
    for (NotchWindow* window : windows) {
      const QRect screen = window->screen()->geometry();
      if (window->screen()->name() == "RIGHT" && screen != second) return false;
      const QRect notch(screen.center().x() + 1 - 95, screen.top(), 190, 24);
      if (window->notchRect().translated(window->geometry().topLeft()).toRect() != notch ||
          !screen.contains(window->geometry())) {
        return false;
      }
    }
    return windows[0]->screen() != windows[1]->screen();
  };
  ASSERT_TRUE(QTest::qWaitFor(notchesRight, 2000));

  RestartDrillSteps steps;
  steps.kill = [&] { return xrandr({"--delmonitor", "RIGHT"}); };
  steps.showsGone = [&] { return displays.manager_->windows().size() == 1; };
  steps.restart = [&] {
    second.setWidth(std::uniform_int_distribution<int>(800, 1600)(random));
    return plugIn();
  };
  steps.rightState = notchesRight;
  const RestartDrillReport report = runRestartDrill("RandR monitor", steps);
  EXPECT_EQ(report.failure, QString()) << report.failure.toStdString();
  EXPECT_EQ(report.restarts, 20);
  xrandr({"--delmonitor", "RIGHT"});
  EXPECT_TRUE(QTest::qWaitFor([&] { return displays.manager_->windows().size() == 1; }, 2000));

  QStringList told;
  for (const auto& entry : diagnostics.entries()) told << entry.text.english();
  EXPECT_EQ(told.filter("display RIGHT went away").size(), 21) << told.join('\n').toStdString();
  EXPECT_EQ(told.filter("display RIGHT is connected").size(), 20);
}

}  // namespace
}  // namespace tindra
