// DefaultCompact: the compact view of an activity that has none of its own: a mark in its
// accent on the left ear and its name on the right one.
#pragma once

#include "views/painted_compact.h"

namespace tindra {

class NotchContent;

class DefaultCompact final : public PaintedCompact {
  Q_OBJECT

 public:
  DefaultCompact(const NotchContent& content, const NotchAppearance& appearance,
                 QQuickItem* parent = nullptr);

  void paint(QPainter* painter) override;

 private:
  const NotchContent& content_;
};

}  // namespace tindra
