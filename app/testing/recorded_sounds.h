// RecordedSounds: a SoundPlayer for tests that plays nothing and keeps the names it was asked to
// play, in order.
#pragma once

#include <QStringList>

#include "base/sound_player.h"

namespace tindra {

struct RecordedSounds final : SoundPlayer {
  void play(const QString& name) override { played << name; }
  QStringList played;
};

}  // namespace tindra
