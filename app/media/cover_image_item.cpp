#include "media/cover_image_item.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace tindra {

void CoverImageItem::setImage(const QImage& image) {
  if (image == image_) return;
  image_ = image;
  emit imageChanged();
  update();
}

void CoverImageItem::setRadius(double radius) {
  if (radius == radius_) return;
  radius_ = radius;
  emit imageChanged();
  update();
}

void CoverImageItem::setTileTop(const QColor& color) {
  if (color == tileTop_) return;
  tileTop_ = color;
  emit imageChanged();
  update();
}

void CoverImageItem::setTileBottom(const QColor& color) {
  if (color == tileBottom_) return;
  tileBottom_ = color;
  emit imageChanged();
  update();
}

void CoverImageItem::paint(QPainter* painter) {
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setRenderHint(QPainter::SmoothPixmapTransform);
  QPainterPath clip;
  clip.addRoundedRect(boundingRect(), radius_, radius_);
  if (image_.isNull()) {
    QLinearGradient tile(0, 0, 0, height());
    tile.setColorAt(0, tileTop_);
    tile.setColorAt(1, tileBottom_);
    painter->fillPath(clip, tile);
    return;
  }
  painter->setClipPath(clip);
  // Fill the square, cropping the longer side of a cover that is not square.
  const QSizeF target = boundingRect().size();
  const QSizeF source = image_.size().scaled(target.toSize(), Qt::KeepAspectRatioByExpanding);
  const QRectF drawn((target.width() - source.width()) / 2, (target.height() - source.height()) / 2,
                     source.width(), source.height());
  painter->drawImage(drawn, image_);
}

}  // namespace tindra
