#include "media/media_compact.h"

#include <QPainter>
#include <algorithm>
#include <array>

#include "views/notch_appearance.h"

namespace tindra {

namespace {

const QColor standardBar(0xff, 0x37, 0x5f);
constexpr double rightMargin = 14;

}  // namespace

MediaCompact::MediaCompact(NowPlayingViewModel& model, const NotchAppearance& appearance,
                           QQuickItem* parent)
    : PaintedCompact(appearance, parent), model_(&model), cover_(this), spectrum_(this) {
  // Under this item's own painting, which puts the note on the tile of a missing cover.
  cover_.setZ(-1);
  cover_.setTileTop(standardBar);
  cover_.setTileBottom(QColor(0x8e, 0x3b, 0xd8));
  spectrum_.setSpectrum(model.spectrum());
  for (auto changed : {&NowPlayingViewModel::trackChanged, &NowPlayingViewModel::playbackChanged,
                       &NowPlayingViewModel::coverChanged}) {
    connect(model_, changed, this, &MediaCompact::follow);
  }
  if (auto* spectrum = qobject_cast<ProcessTapSpectrum*>(model.spectrum())) {
    connect(spectrum, &ProcessTapSpectrum::enabledChanged, this, &MediaCompact::follow);
  }
  connect(&appearance, &NotchAppearance::changed, this, &MediaCompact::follow);
  follow();
}

bool MediaCompact::live() const {
  const auto* spectrum = model_ ? qobject_cast<ProcessTapSpectrum*>(model_->spectrum()) : nullptr;
  return spectrum != nullptr && spectrum->enabled();
}

void MediaCompact::follow() {
  if (!model_) return;
  cover_.setImage(model_->cover());
  spectrum_.setVisible(live() && model_->playing());
  const QColor bar = model_->barColor().isValid() ? model_->barColor() : standardBar;
  spectrum_.setColor(appearance().bar(bar));
  update();
}

void MediaCompact::geometryChange(const QRectF& now, const QRectF& before) {
  PaintedCompact::geometryChange(now, before);
  const double size = std::min(22.0, height() - 8);
  cover_.setRadius(std::max(4.0, size / 6));
  cover_.setPosition({12, (height() - size) / 2});
  cover_.setSize({size, size});
  const QSizeF bars(6 * 3 + 5 * 2, 14);
  spectrum_.setPosition({width() - rightMargin - bars.width(), (height() - bars.height()) / 2});
  spectrum_.setSize(bars);
}

void MediaCompact::paint(QPainter* painter) {
  if (!model_) return;
  painter->setRenderHint(QPainter::Antialiasing);
  if (!model_->hasCover()) {
    const double size = cover_.width();
    QFont note = painter->font();
    note.setPixelSize(std::max(1, static_cast<int>(size * 0.55)));
    painter->setFont(note);
    painter->setPen(Qt::white);
    painter->drawText(QRectF(cover_.position(), cover_.size()), Qt::AlignCenter,
                      QStringLiteral("\u266a"));
  }
  if (!model_->playing()) {
    drawText(*painter, QStringLiteral("\u275a\u275a"),
             {.pixelSize = 9, .weight = QFont::Normal, .color = QColor(0xa1, 0xa1, 0xa6)}, -1,
             width() - rightMargin);
    return;
  }
  if (live()) return;
  // Still bars: they say that it plays, not what it sounds like.
  constexpr std::array heights = {0.55, 1.0, 0.7, 0.4};
  constexpr double barWidth = 3;
  constexpr double spacing = 2;
  double x = width() - rightMargin - heights.size() * barWidth - (heights.size() - 1) * spacing;
  painter->setPen(Qt::NoPen);
  painter->setBrush(appearance().bar(standardBar));
  for (const double share : heights) {
    const double barHeight = 12 * share;
    painter->drawRoundedRect(QRectF(x, (height() - barHeight) / 2, barWidth, barHeight), 1.5, 1.5);
    x += barWidth + spacing;
  }
}

}  // namespace tindra
