// NotchWindow: the notch on one display. A frameless, always-on-top, never-focused window hangs
// from the display's top edge; only the notch outline is drawn and hit, the rest is cut away.
// It samples pointer, button and file-drag state into the NotchHoverStateMachine, animates
// between closed and opened and stretches while the pointer pulls. Two-finger swipes (and, when
// asked, mouse drags) down open it and up put it away; sideways ones go out as swiped(). Putting
// it away, like a click on the opened notch where no control takes it, dismisses it: it stays
// closed under the pointer until the pointer has left. What it shows comes from the shared
// NotchContent; the window keeps geometry, input and animation only.
// The outline and the compact view are items of its own, drawn in C++. The rest (the opened
// panel, compact views written in QML, the menu drawn inside) is a QML scene, made when first
// needed (the pointer on the notch, at the latest as it opens) and let go a while after it was
// last needed: a QML engine is most of what the program would hold at rest.
#pragma once

#include <functional>

#include <QtQml/qqmlregistration.h>
#include <QMenu>
#include <QPointF>
#include <QPointer>
#include <QQuickRenderControl>
#include <QQuickWindow>
#include <QTimer>
#include <QVariantAnimation>
#include <QWheelEvent>
#include <chrono>
#include <memory>

#include "activity/activity_kind.h"
#include "activity/notch_geometry.h"
#include "activity/notch_hover_state_machine.h"
#include "activity/notch_stretch.h"
#include "activity/swipe_recognizer.h"
#include "base/next_change.h"
#include "notch/notch_shape.h"
#include "notch/notch_window_layout.h"
#include "settings/settings_store.h"

namespace tindra {

class ActivityCenter;
class NotchContent;

class NotchShapeItem;

class NotchWindow : public QQuickWindow {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("one per display, made by the app")
  Q_PROPERTY(QRectF shapeRect READ shapeRect NOTIFY shapeChanged)
  Q_PROPERTY(double bottomRadius READ bottomRadius NOTIFY shapeChanged)
  Q_PROPERTY(double flareRadius READ flareRadius CONSTANT)
  Q_PROPERTY(double openProgress READ openProgress NOTIFY shapeChanged)
  Q_PROPERTY(double compactProgress READ compactProgress NOTIFY shapeChanged)
  Q_PROPERTY(QRectF notchRect READ notchRect NOTIFY placementChanged)
  // Whether files are dragged out through dragFilesOut() rather than Qt's own drag.
  Q_PROPERTY(bool dragsFilesItself READ dragsFilesItself CONSTANT)
  // The context menu drawn inside the notch (where no menu window of its own can be placed):
  // its items ({text, enabled, checked, checkable, separator}), none while it is closed, and
  // where it was asked for.
  Q_PROPERTY(QVariantList menuItems READ menuItems NOTIFY menuChanged)
  Q_PROPERTY(QPointF menuPosition READ menuPosition NOTIFY menuChanged)

 public:
  // Where the frames go: to a window of the window system's, or, offscreen, to whoever drives
  // renderControl() (a Wayland layer surface).
  enum class Rendering { window, offscreen };

  // Time comes from the activity centre's clock, which tests inject.
  NotchWindow(ActivityCenter& activities, SettingsStore& settings, NotchContent& content,
              Rendering rendering = Rendering::window);
  ~NotchWindow() override;

  // Shows or hides the notch; an offscreen one's driver shows its own surface.
  virtual void present(bool shown);
  virtual bool isPresented() const { return isVisible(); }
  // Null unless rendering offscreen.
  QQuickRenderControl* renderControl() const { return renderControl_; }
  virtual bool dragsFilesItself() const { return false; }
  // Drags `urls` out to whichever program takes them, from the press under way.
  Q_INVOKABLE virtual void dragFilesOut(const QList<QUrl>& urls) { Q_UNUSED(urls); }

  QVariantList menuItems() const;
  QPointF menuPosition() const { return menuPosition_; }
  // The menu drawn inside: the item chosen, and where the view laid it out (it takes the pointer
  // there too).
  Q_INVOKABLE void chooseMenuItem(int index);
  Q_INVOKABLE void setMenuArea(const QRectF& area);
  void closeMenu();

  // Moves the window to the display that `geometry` describes.
  void place(const NotchGeometry& geometry, const ScreenCoordinates& coordinates, QScreen* screen);
  const NotchGeometry& notchGeometry() const { return geometry_; }
  const NotchWindowLayout& layout() const { return layout_; }

  // The QML scene's root item; null while there is none.
  QQuickItem* sceneRoot() const;
  // How long the scene is kept after it was last needed: long enough that a pointer passing now
  // and then does not make it again each time (3 minutes unless set).
  void setSceneKept(std::chrono::milliseconds kept) { sceneRelease_.setInterval(kept); }

  // Off: every change shows at once (screenshots, tests).
  void setAnimated(bool animated) { animated_ = animated; }
  // Takes files dropped on the notch; returns false to refuse them (they stay where they were).
  void setFileDrop(std::function<bool(const QList<QUrl>& urls)> drop) {
    fileDrop_ = std::move(drop);
  }
  // The menu a right click on the notch shows; none when null.
  void setContextMenu(QMenu* menu) { contextMenu_ = menu; }
  QMenu* contextMenu() const { return contextMenu_; }

  bool isExpanded() const { return machine_.isExpanded(); }
  // Opens or closes on purpose, as a click in click mode does.
  void open();
  void close();
  // Closes and stays closed while the pointer stays on the notch.
  void dismiss();

  QRectF shapeRect() const { return shape_.body; }
  double bottomRadius() const { return shape_.bottomRadius; }
  double flareRadius() const { return NotchWindowLayout::flareRadius; }
  double openProgress() const { return openProgress_; }
  double compactProgress() const { return compactProgress_; }
  QRectF notchRect() const { return layout_.notchRect; }

  // Whether the notch on the display `screen` shows `kind` on its ears, with the pointer at
  // `pointer` (global): the level indicator belongs to the display the pointer is on, as the
  // desktop's own does; every other activity shows everywhere.
  static bool showsCompact(ActivityKind kind, const QRect& screen, const QPoint& pointer);

 signals:
  void shapeChanged();
  void placementChanged();
  void expandedChanged(bool expanded);
  void menuChanged();
  // The QML scene was let go: its memory is free to be given back.
  void sceneReleased();
  // A swipe on the notch, whichever way; up and down have opened or closed it already.
  void swiped(SwipeDirection direction);

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  // Where the pointer is, in global coordinates, for the level that shows on its display.
  virtual QPoint pointerPosition() const;
  // Whether the context menu is drawn inside the notch rather than as a menu window.
  virtual bool drawsMenuInside() const { return false; }

 private:
  NotchWindow(ActivityCenter& activities, SettingsStore& settings, NotchContent& content,
              QQuickRenderControl* renderControl);
  void readSettings();
  void followGlass();
  void sample();
  void showPresentation();
  void animate(QVariantAnimation& animation, double from, double to, int ms,
               const QEasingCurve& curve);
  void pull(const QPointF& position);
  void setStretch(double amount, double anchorX);
  void releasePull();
  void updateShape();
  bool handleMouse(QEvent* event);
  void releaseButton();
  void openMenuInside(const QPointF& at);
  bool handleDrag(QEvent* event);
  void handleWheel(const QWheelEvent& wheel);
  void swipe(SwipeDirection direction);
  bool needsScene() const;
  void followSceneNeed();
  void makeScene();
  void showCompact();
  void flash();
  Q_SLOT void updateOutline();

  QQuickRenderControl* renderControl_;  // a child, so that it outlives the scene's teardown
  ActivityCenter& activities_;
  SettingsStore& settings_;
  NotchContent& content_;
  SettingsObservation settingsObservation_;
  NotchHoverStateMachine machine_;
  NotchGeometry geometry_;
  NotchWindowLayout layout_;
  NotchShape shape_;
  NotchStretch stretch_ = NotchStretch::identity();
  SwipeRecognizer swipes_;
  bool swipeGestures_ = true;
  bool mouseDragGestures_ = false;
  bool blurBehind_ = false;
  QPointer<QMenu> contextMenu_;
  QList<QPointer<QAction>> menuActions_;  // the menu drawn inside, while it is open
  QPointF menuPosition_;
  QRectF menuArea_;

  bool animated_ = true;
  bool pointerInside_ = false;
  bool buttonDown_ = false;
  bool fileDrag_ = false;
  QPointF pointer_;
  QPointF pressPoint_;
  bool pressInside_ = false;
  bool pressOnOpened_ = false;  // the press began on the opened notch
  bool pressTaken_ = false;     // a control, a row or the open menu took the press
  bool shownExpanded_ = false;
  std::function<bool(const QList<QUrl>& urls)> fileDrop_;

  double openProgress_ = 0;
  double compactProgress_ = 0;
  double stretchAmount_ = 0;
  QVariantAnimation openAnimation_;
  QVariantAnimation compactAnimation_;
  QVariantAnimation stretchAnimation_;
  NextChange hoverDeadline_;  // the machine's pending deadline, when it has one

  // Owned by the content item, under the scene.
  NotchShapeItem* outline_;
  QQuickItem* compactArea_;
  std::unique_ptr<QQuickItem> compactView_;  // null where the scene draws the compact view
  QMetaObject::Connection accentFollowed_;   // the compact model's bar colour
  QVariantAnimation flashAnimation_;
  double flash_ = 0;

  struct Scene;
  std::unique_ptr<Scene> scene_;
  QTimer sceneRelease_;
};

}  // namespace tindra
