// FakeMediaKeySource: keys for tests of the routing. It remembers what is wanted, refuses the
// keys a test says another program holds, and sends the presses a test makes.
#pragma once

#include <algorithm>

#include "levels/media_key_source.h"

namespace tindra {

class FakeMediaKeySource final : public MediaKeySource {
  Q_OBJECT

 public:
  using MediaKeySource::MediaKeySource;

  void start() override {}
  void setWanted(const std::vector<KeyGrab>& wanted) override {
    held.clear();
    refused_.clear();
    for (const KeyGrab& grab : wanted) {
      (std::ranges::find(heldElsewhere, grab.key) == heldElsewhere.end() ? held : refused_)
          .push_back(grab);
    }
  }
  std::vector<KeyGrab> refused() const override { return refused_; }

  bool holds(SystemDefinedKeyEvent::Key key, KeyModifiers modifiers = {}) const {
    return std::ranges::find(held, KeyGrab{key, modifiers}) != held.end();
  }
  // A press and release, as a person makes them.
  void tap(SystemDefinedKeyEvent::Key key, KeyModifiers modifiers = {}) {
    emit pressed({key, true, false, modifiers, std::chrono::steady_clock::now()});
    emit pressed({key, false, false, modifiers, std::chrono::steady_clock::now()});
  }

  std::vector<SystemDefinedKeyEvent::Key> heldElsewhere;
  std::vector<KeyGrab> held;

 private:
  std::vector<KeyGrab> refused_;
};

}  // namespace tindra
