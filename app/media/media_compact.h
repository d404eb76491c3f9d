// MediaCompact: the playing track on the closed notch: its cover on the left ear and whether it
// plays on the right one: the live spectrum of the player's sound where it is switched on, else
// bars that stand still and show the state, not the sound; a pause mark while paused.
#pragma once

#include <QPointer>

#include "media/cover_image_item.h"
#include "media/now_playing_view_model.h"
#include "media/spectrum_bars_item.h"
#include "views/painted_compact.h"

namespace tindra {

class MediaCompact final : public PaintedCompact {
  Q_OBJECT

 public:
  MediaCompact(NowPlayingViewModel& model, const NotchAppearance& appearance,
               QQuickItem* parent = nullptr);

  void paint(QPainter* painter) override;

 protected:
  void geometryChange(const QRectF& now, const QRectF& before) override;

 private:
  bool live() const;
  void follow();

  QPointer<NowPlayingViewModel> model_;
  CoverImageItem cover_;
  SpectrumBarsItem spectrum_;
};

}  // namespace tindra
