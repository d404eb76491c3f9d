#include "media/spectrum_bars_item.h"

#include <QPainter>
#include <QQuickWindow>
#include <algorithm>

namespace tindra {

namespace {

constexpr double gap = 2;
constexpr double restingHeight = 2;

}  // namespace

SpectrumBarsItem::SpectrumBarsItem(QQuickItem* parent) : QQuickPaintedItem(parent) {
  setAntialiasing(true);
}

SpectrumBarsItem::~SpectrumBarsItem() {
  if (counted_ && spectrum_) spectrum_->viewShown(false);
}

void SpectrumBarsItem::setSpectrum(QObject* spectrum) {
  auto* typed = qobject_cast<ProcessTapSpectrum*>(spectrum);
  if (typed == spectrum_) return;
  if (counted_ && spectrum_) spectrum_->viewShown(false);
  counted_ = false;
  if (spectrum_) disconnect(spectrum_, nullptr, this, nullptr);
  spectrum_ = typed;
  if (spectrum_) {
    connect(spectrum_, &ProcessTapSpectrum::levelsChanged, this, [this] { update(); });
    connect(spectrum_, &ProcessTapSpectrum::stateChanged, this, [this] { update(); });
  }
  updateShown();
  update();
  emit spectrumChanged();
}

void SpectrumBarsItem::setColor(const QColor& color) {
  if (color == color_) return;
  color_ = color;
  update();
  emit spectrumChanged();
}

void SpectrumBarsItem::itemChange(ItemChange change, const ItemChangeData& value) {
  QQuickPaintedItem::itemChange(change, value);
  if (change == ItemSceneChange) {
    disconnect(windowVisibility_);
    if (value.window) {
      windowVisibility_ =
          connect(value.window, &QWindow::visibleChanged, this, &SpectrumBarsItem::updateShown);
    }
  }
  if (change == ItemVisibleHasChanged || change == ItemSceneChange) updateShown();
}

void SpectrumBarsItem::updateShown() {
  const bool shown = spectrum_ && isVisible() && window() && window()->isVisible();
  if (shown == counted_) return;
  counted_ = shown;
  spectrum_->viewShown(shown);
}

void SpectrumBarsItem::paint(QPainter* painter) {
  if (!spectrum_) return;
  const std::span<const float> levels = spectrum_->levels();
  if (levels.empty()) return;
  const bool pseudo = spectrum_->state() == ProcessTapSpectrum::State::unavailable;
  const double count = static_cast<double>(levels.size());
  const double barWidth = std::max(1.0, (width() - gap * (count - 1)) / count);
  painter->setRenderHint(QPainter::Antialiasing);
  if (pseudo) {
    // Outlines in a paler colour: nobody should take these for a measurement.
    QColor outline = color_;
    outline.setAlphaF(0.55f);
    painter->setPen(QPen(outline, 1));
    painter->setBrush(Qt::NoBrush);
  } else {
    painter->setPen(Qt::NoPen);
    painter->setBrush(color_);
  }
  for (std::size_t bar = 0; bar < levels.size(); ++bar) {
    const double level = std::clamp(static_cast<double>(levels[bar]), 0.0, 1.0);
    const double h = std::max(restingHeight, level * height());
    const QRectF rect(static_cast<double>(bar) * (barWidth + gap), (height() - h) / 2, barWidth, h);
    painter->drawRoundedRect(pseudo ? rect.adjusted(0.5, 0.5, -0.5, -0.5) : rect, barWidth / 2,
                             barWidth / 2);
  }
}

}  // namespace tindra
