// CoverImageItem: draws a cover image with rounded corners, as "CoverImage" in the "Tindra" QML
// module; without one, a tile shaded from `tileTop` to `tileBottom`. The image comes straight
// from a view model as a QImage: no image provider, no copy through a URL. The tile is drawn
// here, once into the item's own image, rather than as a gradient the scene graph paints on
// every frame: the raster engine keeps a colour table for each opacity a gradient is painted
// at, and a tile fading in and out fills that cache with sixty of them for good.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QImage>
#include <QQuickPaintedItem>

namespace tindra {

class CoverImageItem : public QQuickPaintedItem {
  Q_OBJECT
  QML_NAMED_ELEMENT(CoverImage)
  Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged)
  Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY imageChanged)
  Q_PROPERTY(QColor tileTop MEMBER tileTop_ WRITE setTileTop NOTIFY imageChanged)
  Q_PROPERTY(QColor tileBottom MEMBER tileBottom_ WRITE setTileBottom NOTIFY imageChanged)

 public:
  explicit CoverImageItem(QQuickItem* parent = nullptr) : QQuickPaintedItem(parent) {}

  QImage image() const { return image_; }
  void setImage(const QImage& image);
  double radius() const { return radius_; }
  void setRadius(double radius);
  void setTileTop(const QColor& color);
  void setTileBottom(const QColor& color);

  void paint(QPainter* painter) override;

 signals:
  void imageChanged();

 private:
  QImage image_;
  double radius_ = 6;
  QColor tileTop_ = Qt::transparent;
  QColor tileBottom_ = Qt::transparent;
};

}  // namespace tindra
