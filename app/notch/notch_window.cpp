#include "notch/notch_window.h"

#include <QDateTime>
#include <QDragEnterEvent>
#include <QLocale>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QQmlContext>
#include <QSurfaceFormat>
#include <algorithm>

#include "activity_center.h"
#include "notch/activity_presentation.h"
#include "notch/notch_shape_item.h"
#include "platform/display_platform.h"
#include "settings/settings_keys.h"

namespace tindra {

namespace {

// While a deadline is pending the machine is asked again this often (milliseconds).
constexpr int deadlinePollInterval = 20;
// Pointer travel, in pixels, that counts as a full pull of the rubber band.
constexpr double fullPullDistance = 80;

double lerp(double from, double to, double t) {
  return from + (to - from) * t;
}

}  // namespace

NotchWindow::NotchWindow(ActivityCenter& activities, SettingsStore& settings, QWindow* parent)
    : QQuickView(parent), activities_(activities), settings_(settings) {
  setFlags(notchWindowFlags());
  QSurfaceFormat surface = format();
  surface.setAlphaBufferSize(8);
  setFormat(surface);
  setColor(Qt::transparent);
  setResizeMode(QQuickView::SizeRootObjectToView);
  setTitle(QStringLiteral("Tindra"));

  readTiming();
  timingObservation_ = settings_.observe(
      {std::string(settings::notchOpeningMode.name), std::string(settings::hoverOpenDelay.name),
       std::string(settings::holdOpenDuration.name)},
      [this](std::string_view) { readTiming(); });

  for (QVariantAnimation* animation : {&openAnimation_, &compactAnimation_, &stretchAnimation_}) {
    animation->setStartValue(0.0);
    animation->setEndValue(1.0);
  }
  connect(&openAnimation_, &QVariantAnimation::valueChanged, this, [this](const QVariant& v) {
    openProgress_ = v.toDouble();
    updateShape();
  });
  connect(&compactAnimation_, &QVariantAnimation::valueChanged, this, [this](const QVariant& v) {
    compactProgress_ = v.toDouble();
    updateShape();
  });
  connect(&stretchAnimation_, &QVariantAnimation::valueChanged, this,
          [this](const QVariant& v) { setStretch(v.toDouble(), stretch_.anchorX()); });

  deadlineTimer_.setInterval(deadlinePollInterval);
  connect(&deadlineTimer_, &QTimer::timeout, this, &NotchWindow::sample);
  clockTimer_.setSingleShot(true);
  connect(&clockTimer_, &QTimer::timeout, this, &NotchWindow::updateClock);

  connect(&activities_, &ActivityCenter::currentChanged, this, [this](ActivityKind kind) {
    emit activityChanged();
    const double target = kind == ActivityKind::idle ? 0.0 : 1.0;
    animate(compactAnimation_, compactProgress_, target, 260, QEasingCurve(QEasingCurve::OutCubic));
  });
  compactProgress_ = activities_.current() == ActivityKind::idle ? 0.0 : 1.0;

  static const bool shapeTypeKnown = (NotchShapeItem::registerType(), true);
  Q_UNUSED(shapeTypeKnown);
  rootContext()->setContextProperty(QStringLiteral("notch"), this);
  setSource(QUrl(QStringLiteral("qrc:/tindra/notch/Notch.qml")));
}

NotchWindow::~NotchWindow() = default;

void NotchWindow::place(const NotchGeometry& geometry, const ScreenCoordinates& coordinates,
                        QScreen* screen) {
  const NotchWindowLayout layout = NotchWindowLayout::forGeometry(geometry, coordinates);
  geometry_ = geometry;
  if (screen != nullptr && screen != this->screen()) setScreen(screen);
  if (layout == layout_ && QWindow::geometry() == layout.windowRect) return;
  layout_ = layout;
  setGeometry(layout_.windowRect);
  emit placementChanged();
  updateShape();
}

void NotchWindow::readTiming() {
  NotchHoverStateMachine::Timing timing;
  timing.openDelay = settings_.read(settings::hoverOpenDelay);
  timing.holdDuration = settings_.read(settings::holdOpenDuration);
  timing.openingMode = notchOpeningModeFromRaw(settings_.read(settings::notchOpeningMode))
                           .value_or(NotchOpeningMode::hover);
  machine_.setTiming(timing);
}

QString NotchWindow::activityLabel() const {
  return ActivityPresentation::of(activities_.current()).label;
}

QColor NotchWindow::activityAccent() const {
  return ActivityPresentation::of(activities_.current()).accent;
}

void NotchWindow::open() {
  machine_.open();
  showPresentation();
}

void NotchWindow::close() {
  machine_.close();
  showPresentation();
}

bool NotchWindow::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::Enter:
      pointerInside_ = true;
      sample();
      break;
    case QEvent::Leave:
      pointerInside_ = false;
      sample();
      break;
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
      if (handleMouse(event)) return true;
      break;
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::DragLeave:
    case QEvent::Drop:
      return handleDrag(event);
    default:
      break;
  }
  return QQuickView::event(event);
}

bool NotchWindow::handleMouse(QEvent* event) {
  auto* mouse = static_cast<QMouseEvent*>(event);
  pointerInside_ = true;
  pointer_ = mouse->position();
  if (event->type() == QEvent::MouseButtonPress && mouse->button() == Qt::RightButton) {
    if (contextMenu_ != nullptr && shape_.contains(pointer_)) {
      contextMenu_->popup(mouse->globalPosition().toPoint());
      return true;
    }
    return false;
  }
  const bool wasDown = buttonDown_;
  buttonDown_ = mouse->buttons().testFlag(Qt::LeftButton);
  if (buttonDown_ && !wasDown) {
    pressPoint_ = pointer_;
    pressInside_ = shape_.contains(pointer_);
  }
  if (buttonDown_ && pressInside_ && !machine_.isExpanded()) pull(pointer_);
  if (!buttonDown_ && wasDown) {
    const bool clicked = pressInside_ && shape_.contains(pointer_);
    releasePull();
    pressInside_ = false;
    if (clicked && !machine_.isExpanded() &&
        machine_.timing().openingMode == NotchOpeningMode::click) {
      machine_.open();
    }
  }
  sample();
  return false;
}

bool NotchWindow::handleDrag(QEvent* event) {
  switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove: {
      auto* drag = static_cast<QDragMoveEvent*>(event);
      fileDrag_ = drag->mimeData()->hasUrls();
      pointerInside_ = true;
      pointer_ = drag->position();
      if (fileDrag_) drag->acceptProposedAction();
      break;
    }
    case QEvent::Drop:
      // Nothing keeps dropped files yet; refusing the drop leaves them where they were.
      static_cast<QDropEvent*>(event)->ignore();
      fileDrag_ = false;
      break;
    default:
      fileDrag_ = false;
      pointerInside_ = false;
      break;
  }
  sample();
  return true;
}

void NotchWindow::sample() {
  const bool hovering = pointerInside_ && shape_.contains(pointer_);
  machine_.update(hovering, buttonDown_, fileDrag_, ActivityCenter::monotonicNow());
  showPresentation();
}

void NotchWindow::showPresentation() {
  if (machine_.pendingDeadline()) {
    if (!deadlineTimer_.isActive()) deadlineTimer_.start();
  } else {
    deadlineTimer_.stop();
  }
  const bool expanded = machine_.isExpanded();
  if (expanded == shownExpanded_) return;
  shownExpanded_ = expanded;
  if (expanded) {
    releasePull();
    updateClock();
    animate(openAnimation_, openProgress_, 1.0, 420, QEasingCurve(QEasingCurve::OutBack));
  } else {
    clockTimer_.stop();
    animate(openAnimation_, openProgress_, 0.0, 240, QEasingCurve(QEasingCurve::InOutCubic));
  }
  emit expandedChanged(expanded);
}

void NotchWindow::animate(QVariantAnimation& animation, double from, double to, int ms,
                          const QEasingCurve& curve) {
  animation.stop();
  animation.setStartValue(from);
  animation.setEndValue(to);
  // A zero-length animation lands on its end value at once, through the same handler.
  animation.setDuration(animated_ && isVisible() ? ms : 0);
  animation.setEasingCurve(curve);
  animation.start();
}

void NotchWindow::pull(const QPointF& position) {
  stretchAnimation_.stop();
  const QPointF delta = position - pressPoint_;
  // Pulling sideways keeps the far side in place and lets the near side give.
  const double anchor = 0.5 - delta.x() / std::max(1.0, 2 * shape_.body.width());
  setStretch(NotchStretch::amount(delta.y() / fullPullDistance), anchor);
}

void NotchWindow::setStretch(double amount, double anchorX) {
  stretchAmount_ = amount;
  stretch_ = NotchStretch(1 + amount, 1 + 2 * amount, anchorX);
  updateShape();
}

void NotchWindow::releasePull() {
  if (stretchAmount_ == 0) return;
  QEasingCurve spring(QEasingCurve::OutElastic);
  spring.setAmplitude(1.0);
  spring.setPeriod(0.4);
  animate(stretchAnimation_, stretchAmount_, 0.0, 450, spring);
}

void NotchWindow::updateShape() {
  const double compactWidth =
      lerp(layout_.notchRect.width(), layout_.compactWidthWithEars, compactProgress_);
  const double width =
      lerp(compactWidth, layout_.panelSize.width(), openProgress_) * stretch_.widthScale();
  const double height =
      lerp(layout_.notchRect.height(), layout_.panelSize.height(), openProgress_) *
      stretch_.heightScale();
  const double flare = NotchWindowLayout::flareRadius;
  const double maxWidth = std::max(1.0, this->width() - 2 * flare);
  const double bodyWidth = std::min(width, maxWidth);
  const double centre = layout_.notchRect.center().x();
  const double left =
      std::clamp(centre - bodyWidth * stretch_.anchorX(), flare, flare + maxWidth - bodyWidth);
  shape_.body = QRectF(left, 0, bodyWidth, std::min<double>(height, this->height()));
  shape_.bottomRadius = lerp(std::min(10.0, layout_.notchRect.height() / 3), 26, openProgress_);
  shape_.flareRadius = flare;
  setMask(shape_.region());
  emit shapeChanged();
}

void NotchWindow::updateClock() {
  const QDateTime now = QDateTime::currentDateTime();
  const QLocale locale;
  // The panel shows hours and minutes; some locales' short format (C's among them) has seconds.
  QString timeFormat = locale.timeFormat(QLocale::ShortFormat);
  timeFormat.remove(QStringLiteral(":ss"));
  timeText_ = locale.toString(now.time(), timeFormat);
  dateText_ = locale.toString(now.date(), QStringLiteral("dddd d MMMM"));
  emit clockChanged();
  if (!machine_.isExpanded()) return;
  // Wake at the next minute boundary, and not at all while closed.
  const int msIntoMinute = now.time().second() * 1000 + now.time().msec();
  clockTimer_.start(60'000 - msIntoMinute + 50);
}

}  // namespace tindra
