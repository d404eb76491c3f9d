// FakeFocusStatusSource: an invented do-not-disturb switch for the demo and tests, chosen only
// when TINDRA_FAKE names "focus". Its check says that nothing shown is real.
#pragma once

#include "focus/focus_status_source.h"

namespace tindra {

class FakeFocusStatusSource final : public FocusStatusSource {
  Q_OBJECT

 public:
  explicit FakeFocusStatusSource(std::optional<bool> focused = false, QObject* parent = nullptr)
      : FocusStatusSource(parent) {
    publish(focused);
    setCheck(DiagnosticsLog::Outcome::ok,
             Sentence(QT_TR_NOOP("invented do-not-disturb (TINDRA_FAKE)"), tr));
  }

  void start() override {}
  void setFocused(std::optional<bool> focused) { publish(focused); }
};

}  // namespace tindra
