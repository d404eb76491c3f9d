// MpvPlayer: a real player for tests: mpv with its MPRIS plug-in on the session bus, playing
// tones made by sox in turn into the session's sound server (TINDRA_SOUND_SERVER), or into
// nothing where the session has none. Tests skip, or fail on CI, when mpv, the plug-in or sox is
// missing.
#pragma once

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

namespace tindra {

class MpvPlayer {
 public:
  // What is missing to play, or empty.
  static QString missing();

  // Starts playing a tone a minute long for each name ("first", "second", ...) and waits until
  // the player is on the bus.
  explicit MpvPlayer(const QStringList& tracks);
  ~MpvPlayer();

  bool onBus() const { return onBus_; }
  qint64 processId() const { return process_.processId(); }

 private:
  QTemporaryDir folder_;
  QProcess process_;
  bool onBus_ = false;
};

}  // namespace tindra
