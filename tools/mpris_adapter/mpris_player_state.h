// MprisPlayerState: what the adapter knows of one MPRIS player on the session bus, as plain
// values: its status, track, position sample and modes. Everything in it came from another
// process, so nothing is trusted until the payload is made.
#pragma once

#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <cstdint>
#include <optional>

namespace tindra {

struct MprisPlayerState {
  QString busName;       // "org.mpris.MediaPlayer2.mpv"
  QString desktopEntry;  // "mpv", "firefox"; empty when the player gives none
  std::optional<std::int64_t> processIdentifier;  // of the bus name's owner
  QString playbackStatus;                         // "Playing", "Paused", "Stopped"
  QVariantMap metadata;
  double rate = 1.0;
  std::optional<bool> shuffle;
  QString loopStatus;  // "None", "Track", "Playlist"; empty when the player has none
  std::optional<std::int64_t> positionMicros;  // at `sampledAtMicros`
  std::int64_t sampledAtMicros = 0;            // microseconds since 1970
  std::int64_t lastActiveMicros = 0;           // when it last changed anything
  std::int64_t startedPlayingMicros = 0;       // when it last changed to Playing
  // The player's CanControl, CanPlay, CanPause, CanGoNext, CanGoPrevious and CanSeek. One it
  // never gave counts as yes: that is how every player was treated before they were read.
  struct Controls {
    bool control = true;
    bool play = true;
    bool pause = true;
    bool next = true;
    bool previous = true;
    bool seek = true;
  } controls;

  bool isPlaying() const { return playbackStatus == QLatin1String("Playing"); }
  // The metadata entry `key` when it is a string; empty otherwise.
  QString text(const QString& key) const;
  // A player without a title has nothing to show (an idle browser tab, a remote device).
  bool hasTrack() const;
  // What names the track for position reads: the track id, else the address.
  QString trackKey() const;
  // The bundle identifier the notch names the player by: the desktop entry, else the bus name's
  // last part without a browser's ".instanceNNNN".
  QString bundleIdentifier() const;
  // The commands the notch may offer, as raw NowPlayingCapabilities bits: none without control;
  // shuffle and repeat only for a player that shows those modes at all.
  std::int64_t capabilities() const;
};

}  // namespace tindra
