// PlasmaVolumeSoundPreference: the "audio feedback" switch of Plasma's volume settings, which
// plasma-pa keeps as `AudioFeedback` in the [General] group of plasmaparc in the user's config
// folder (on when the file or the entry is missing, as Plasma reads it). The file is followed as
// Plasma rewrites it; nothing is polled.
#pragma once

#include <QByteArray>
#include <QString>

#include "base/watched_file.h"
#include "levels/volume_sound_preference.h"

namespace tindra {

class PlasmaVolumeSoundPreference final : public VolumeSoundPreference {
  Q_OBJECT

 public:
  // plasmaparc in the user's config folder.
  static QString defaultFile();
  // The switch as the text of a KDE config file sets it.
  static bool audioFeedbackIn(const QByteArray& config);

  explicit PlasmaVolumeSoundPreference(const QString& file = defaultFile(),
                                       QObject* parent = nullptr);

  void start() override;

 private:
  void read();

  WatchedFile file_;
  bool started_ = false;
};

}  // namespace tindra
