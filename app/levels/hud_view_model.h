// HudViewModel: what the indicator shows: the level, what it measures (its symbol), and how the
// bar is drawn: its style, its colour, and whether it glides (keys held down) or settles.
#pragma once

#include <QColor>
#include <QObject>
#include <QString>
#include <chrono>
#include <optional>

#include "hud/hud_bar_motion.h"
#include "hud/hud_bar_style.h"
#include "hud/hud_state.h"
#include "hud/hud_tint.h"

namespace tindra {

class HudViewModel : public QObject {
  Q_OBJECT
  Q_PROPERTY(bool available READ available NOTIFY changed)
  Q_PROPERTY(QString kind READ kind NOTIFY changed)   // "volume", "brightness", "keyboardBacklight"
  Q_PROPERTY(double level READ level NOTIFY changed)  // 0 ... 1, 0 while muted
  Q_PROPERTY(int percent READ percent NOTIFY changed)
  Q_PROPERTY(bool muted READ muted NOTIFY changed)
  Q_PROPERTY(QString symbol READ symbol NOTIFY changed)  // "speaker.wave.2.fill", "display", ...
  Q_PROPERTY(QString barStyle READ barStyle NOTIFY changed)    // "continuous", "segmented", "ring"
  Q_PROPERTY(int litSegments READ litSegments NOTIFY changed)  // of segmentCount
  Q_PROPERTY(int segmentCount READ segmentCount CONSTANT)
  Q_PROPERTY(QColor barColor READ barColor NOTIFY changed)
  Q_PROPERTY(double glideSeconds READ glideSeconds NOTIFY changed)  // 0: settle
  // While the indicator is the notch's activity; the opened notch shows it large then.
  Q_PROPERTY(bool showing READ showing NOTIFY showingChanged)

 public:
  using QObject::QObject;

  bool available() const { return state_.has_value(); }
  QString kind() const;
  double level() const { return state_ ? state_->displayedLevel() : 0; }
  int percent() const { return state_ ? state_->percent() : 0; }
  bool muted() const { return state_ && state_->isMuted(); }
  QString symbol() const;
  QString barStyle() const;
  int litSegments() const;
  int segmentCount() const;
  QColor barColor() const;
  double glideSeconds() const { return motion_.glideDuration().value_or(0); }
  bool showing() const { return showing_; }

  // A change to show, and the key press it answers (none for a change made elsewhere).
  void show(const HUDState& state, HUDBarMotion motion, HUDBarStyle style, HUDTint tint,
            std::optional<std::chrono::steady_clock::time_point> keyAt = std::nullopt);
  void setShowing(bool showing);

 signals:
  void changed();
  void showingChanged();
  // The state of a key press is in the model; `keyAt` is when the press was read.
  void shownForKey(std::chrono::steady_clock::time_point keyAt);

 private:
  std::optional<HUDState> state_;
  HUDBarMotion motion_ = HUDBarMotion::settle();
  HUDBarStyle style_ = HUDBarStyle::continuous;
  HUDTint tint_ = HUDTint::white;
  bool showing_ = false;
};

}  // namespace tindra
