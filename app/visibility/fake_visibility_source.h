// FakeVisibilitySource: an invented window in front for the demo and tests, chosen only when
// TINDRA_FAKE names "visibility": nothing is in front until a test or the demo puts something
// there, full screen or not.
#pragma once

#include "visibility/visibility_source.h"

namespace tindra {

class FakeVisibilitySource final : public VisibilitySource {
  Q_OBJECT

 public:
  explicit FakeVisibilitySource(QObject* parent = nullptr) : VisibilitySource(parent) {
    setCheck(DiagnosticsLog::Outcome::ok,
             Sentence(QT_TR_NOOP("an invented window in front (TINDRA_FAKE)"), tr));
  }

  void start() override {}
  void show(std::optional<FrontmostApp> frontmost, std::vector<WindowSnapshot> windows) {
    publish(std::move(frontmost), std::move(windows));
  }
};

}  // namespace tindra
