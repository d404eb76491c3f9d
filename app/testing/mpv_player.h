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

  // Starts playing a tone `seconds` long for each name ("first", "second", ...) and waits until
  // the player is on the bus.
  explicit MpvPlayer(const QStringList& tracks, int seconds = 60);
  ~MpvPlayer();

  bool onBus() const { return onBus_; }
  qint64 processId() const { return process_.processId(); }
  // Ends the player abruptly (SIGKILL, as a crash would) and waits until it is gone.
  void kill();

 private:
  QTemporaryDir folder_;
  QProcess process_;
  bool onBus_ = false;
};

}  // namespace tindra
