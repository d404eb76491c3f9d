// PaintedCompact: a compact view (the two ears of the closed notch) drawn with QPainter rather
// than in QML. A closed notch then needs no QML engine, which is most of what Tindra holds at
// rest; the engine is made when the notch opens. Subclasses draw their view model and call
// update() when it changes; the appearance's changes repaint every one.
#pragma once

#include <QColor>
#include <QFont>
#include <QQuickPaintedItem>
#include <Qt>

namespace tindra {

class NotchAppearance;

class PaintedCompact : public QQuickPaintedItem {
  Q_OBJECT

 public:
  explicit PaintedCompact(const NotchAppearance& appearance, QQuickItem* parent = nullptr);

 protected:
  const NotchAppearance& appearance() const { return appearance_; }

  struct TextStyle {
    int pixelSize = 11;
    QFont::Weight weight = QFont::DemiBold;
    QColor color = Qt::white;
  };
  // Draws `text` on one line, vertically centred in the ear: from `left` onwards, or ending at
  // `right` when `left` is negative; elided on the right past `maxWidth`. Returns its width.
  double drawText(QPainter& painter, const QString& text, const TextStyle& style, double left,
                  double right = -1, double maxWidth = 4096) const;

 private:
  const NotchAppearance& appearance_;
};

}  // namespace tindra
