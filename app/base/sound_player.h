// SoundPlayer: Tindra's short notice sounds, played by name ("tindra-charging",
// "tindra-low-battery") on the default output. Providers play them only while the app-wide
// sounds setting is on.
#pragma once

#include <QString>
#include <memory>

namespace tindra {

class SharedBackends;

class SoundPlayer {
 public:
  virtual ~SoundPlayer() = default;
  virtual void play(const QString& name) = 0;

  // The one player of this platform, shared by every provider.
  static std::shared_ptr<SoundPlayer> shared(SharedBackends& shared);
};

}  // namespace tindra
