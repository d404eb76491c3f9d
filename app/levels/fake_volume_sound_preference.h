// FakeVolumeSoundPreference: a desktop choice the test (or the demo, when TINDRA_FAKE names
// "hud") sets by hand.
#pragma once

#include "levels/volume_sound_preference.h"

namespace tindra {

class FakeVolumeSoundPreference final : public VolumeSoundPreference {
  Q_OBJECT

 public:
  explicit FakeVolumeSoundPreference(std::optional<bool> setting = std::nullopt,
                                     QObject* parent = nullptr)
      : VolumeSoundPreference(parent), initial_(setting) {}

  void start() override {
    setCheck(
        DiagnosticsLog::Outcome::degraded,
        Sentence(QT_TR_NOOP("an invented volume sound setting (TINDRA_FAKE asks for it)"), tr));
    publish(initial_);
  }
  // What the user does in the desktop's settings.
  using VolumeSoundPreference::publish;

 private:
  std::optional<bool> initial_;
};

}  // namespace tindra
