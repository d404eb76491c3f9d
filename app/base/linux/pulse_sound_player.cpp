#include "base/linux/pulse_sound_player.h"

#include "base/shared_backends.h"

namespace tindra {

PulseSoundPlayer::PulseSoundPlayer(std::shared_ptr<PulseConnection> connection,
                                   const QStringList& names)
    : connection_(std::move(connection)) {
  for (const QString& name : names) {
    samples_.emplace(name,
                     std::make_unique<PulseSample>(
                         *connection_, name.toUtf8(),
                         PulseSample::fromResource(QStringLiteral(":/sounds/%1.wav").arg(name))));
  }
  connection_->start();
}

void PulseSoundPlayer::play(const QString& name) {
  if (const auto sample = samples_.find(name); sample != samples_.end()) sample->second->play({});
}

std::shared_ptr<SoundPlayer> SoundPlayer::shared(SharedBackends& shared) {
  return shared.get<SoundPlayer>([&shared] {
    return std::make_shared<PulseSoundPlayer>(
        PulseConnection::shared(shared),
        QStringList{"tindra-charging", "tindra-low-battery", "tindra-event"});
  });
}

}  // namespace tindra
