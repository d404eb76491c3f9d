// SpectrumBarsItem: the live spectrum's bars, as "SpectrumBars" in the "Tindra" QML module. It
// reads the levels straight from the ProcessTapSpectrum (no list per frame), draws measured bars
// filled and pseudo ones (nothing could be captured) as hollow outlines, and tells the spectrum
// while it is on screen, so that nothing is captured for bars nobody sees.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QPointer>
#include <QQuickPaintedItem>

#include "media/process_tap_spectrum.h"

namespace tindra {

class SpectrumBarsItem : public QQuickPaintedItem {
  Q_OBJECT
  QML_NAMED_ELEMENT(SpectrumBars)
  Q_PROPERTY(QObject* spectrum READ spectrum WRITE setSpectrum NOTIFY spectrumChanged)
  Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY spectrumChanged)

 public:
  explicit SpectrumBarsItem(QQuickItem* parent = nullptr);
  ~SpectrumBarsItem() override;

  QObject* spectrum() const { return spectrum_; }
  void setSpectrum(QObject* spectrum);
  QColor color() const { return color_; }
  void setColor(const QColor& color);

  void paint(QPainter* painter) override;

 signals:
  void spectrumChanged();

 protected:
  void itemChange(ItemChange change, const ItemChangeData& value) override;

 private:
  void updateShown();

  QPointer<ProcessTapSpectrum> spectrum_;
  QColor color_ = QColor(0xff, 0x37, 0x5f);
  bool counted_ = false;
  QMetaObject::Connection windowVisibility_;
};

}  // namespace tindra
