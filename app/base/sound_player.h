// SoundPlayer: Tindra's short notice sounds, played by name ("tindra-charging",
// "tindra-low-battery") on the default output. Providers play them only while the app-wide
// sounds setting is on.
#pragma once

#include <QString>

namespace tindra {

class SoundPlayer {
 public:
  virtual ~SoundPlayer() = default;
  virtual void play(const QString& name) = 0;
};

}  // namespace tindra
