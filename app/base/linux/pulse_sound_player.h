// PulseSoundPlayer: the notice sounds shipped in the resources (":/sounds/<name>.wav"), kept in
// the sound server's sample cache and played there by name, on the connection the volume shares.
#pragma once

#include <map>
#include <memory>

#include "base/linux/pulse_sample.h"
#include "base/sound_player.h"

namespace tindra {

class PulseSoundPlayer final : public SoundPlayer {
 public:
  PulseSoundPlayer(std::shared_ptr<PulseConnection> connection, const QStringList& names);

  void play(const QString& name) override;

 private:
  std::shared_ptr<PulseConnection> connection_;
  std::map<QString, std::unique_ptr<PulseSample>> samples_;
};

}  // namespace tindra
