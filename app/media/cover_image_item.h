// CoverImageItem: draws a cover image with rounded corners, as "CoverImage" in the "Tindra" QML
// module. The image comes straight from a view model as a QImage: no image provider, no copy
// through a URL.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QImage>
#include <QQuickPaintedItem>

namespace tindra {

class CoverImageItem : public QQuickPaintedItem {
  Q_OBJECT
  QML_NAMED_ELEMENT(CoverImage)
  Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged)
  Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY imageChanged)

 public:
  explicit CoverImageItem(QQuickItem* parent = nullptr) : QQuickPaintedItem(parent) {}

  QImage image() const { return image_; }
  void setImage(const QImage& image);
  double radius() const { return radius_; }
  void setRadius(double radius);

  void paint(QPainter* painter) override;

 signals:
  void imageChanged();

 private:
  QImage image_;
  double radius_ = 6;
};

}  // namespace tindra
