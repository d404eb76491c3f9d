// HudViewModel: the level the indicator shows: what it measures, the bar's fill and the symbol.
#pragma once

#include <QObject>
#include <QString>
#include <optional>

#include "hud/hud_state.h"

namespace tindra {

class HudViewModel : public QObject {
  Q_OBJECT
  Q_PROPERTY(bool available READ available NOTIFY changed)
  Q_PROPERTY(double level READ level NOTIFY changed)  // 0 ... 1, 0 while muted
  Q_PROPERTY(int percent READ percent NOTIFY changed)
  Q_PROPERTY(bool muted READ muted NOTIFY changed)
  Q_PROPERTY(QString symbol READ symbol NOTIFY changed)  // "speaker.wave.2.fill", ...

 public:
  using QObject::QObject;

  bool available() const { return state_.has_value(); }
  double level() const { return state_ ? state_->displayedLevel() : 0; }
  int percent() const { return state_ ? state_->percent() : 0; }
  bool muted() const { return state_ && state_->isMuted(); }
  QString symbol() const {
    return state_ ? QString::fromUtf8(state_->symbolName().data(),
                                      static_cast<qsizetype>(state_->symbolName().size()))
                  : QString();
  }

  void setState(std::optional<HUDState> state) {
    if (state == state_) return;
    state_ = state;
    emit changed();
  }

 signals:
  void changed();

 private:
  std::optional<HUDState> state_;
};

}  // namespace tindra
