#include "levels/hud_view_model.h"

#include <QGuiApplication>
#include <QPalette>

#include "base/qt_text.h"

namespace tindra {

QString HudViewModel::kind() const {
  return state_ ? toQString(rawValue(state_->kind())) : QString();
}

QString HudViewModel::symbol() const {
  return state_ ? toQString(state_->symbolName()) : QString();
}

QString HudViewModel::barStyle() const {
  return toQString(rawValue(style_));
}

int HudViewModel::litSegments() const {
  return tindra::litSegments(level());
}

int HudViewModel::segmentCount() const {
  return hudBarSegmentCount;
}

QColor HudViewModel::barColor() const {
  switch (tint_) {
    case HUDTint::white:
      return Qt::white;
    case HUDTint::accent:
      return QGuiApplication::palette().color(QPalette::Highlight);
    case HUDTint::level: {
      const HUDColor color = levelColor(level());
      return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                              static_cast<float>(color.blue));
    }
  }
  return Qt::white;
}

void HudViewModel::show(const HUDState& state, HUDBarMotion motion, HUDBarStyle style, HUDTint tint,
                        std::optional<std::chrono::steady_clock::time_point> keyAt) {
  state_ = state;
  motion_ = motion;
  style_ = style;
  tint_ = tint;
  emit changed();
  if (keyAt) emit shownForKey(*keyAt);
}

void HudViewModel::setShowing(bool showing) {
  if (showing == showing_) return;
  showing_ = showing;
  emit showingChanged();
}

}  // namespace tindra
