// FakeFocusStatusSource: an invented do-not-disturb switch for the demo and tests, chosen only
// when TINDRA_FAKE names "focus". Its check says that nothing shown is real.
#pragma once

#include "base/assign_if_changed.h"
#include "focus/focus_status_source.h"

namespace tindra {

class FakeFocusStatusSource final : public FocusStatusSource {
 public:
  explicit FakeFocusStatusSource(std::optional<bool> focused = false, QObject* parent = nullptr)
      : FocusStatusSource(parent), focused_(focused) {}

  void start() override {}
  std::optional<bool> focused() const override { return focused_; }
  ServiceCheck check() const override {
    return {DiagnosticsLog::Outcome::ok, QStringLiteral("invented do-not-disturb (TINDRA_FAKE)")};
  }

  void setFocused(std::optional<bool> focused) {
    if (assignIfChanged(focused_, focused)) emit focusedChanged();
  }

 private:
  std::optional<bool> focused_;
};

}  // namespace tindra
