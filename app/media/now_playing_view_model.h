// NowPlayingViewModel: the playing track as the media views show it. The position is given as a
// sample (`elapsed` seconds at `sampledAt`, advancing at `playbackRate`) so that the views
// advance it themselves, from one timer aimed at the next visible change, instead of this model
// ticking. Buttons call the Q_INVOKABLE commands, which reach the provider's source.
#pragma once

#include <QColor>
#include <QImage>
#include <QObject>
#include <QString>
#include <functional>
#include <optional>

#include "nowplaying/now_playing_command.h"
#include "nowplaying/now_playing_snapshot.h"
#include "nowplaying/scrub_state.h"

namespace tindra {

class NowPlayingViewModel : public QObject {
  Q_OBJECT
  Q_PROPERTY(bool hasTrack READ hasTrack NOTIFY trackChanged)
  Q_PROPERTY(QString title READ title NOTIFY trackChanged)
  Q_PROPERTY(QString artist READ artist NOTIFY trackChanged)
  Q_PROPERTY(QString album READ album NOTIFY trackChanged)
  Q_PROPERTY(QString player READ player NOTIFY trackChanged)
  Q_PROPERTY(double duration READ duration NOTIFY trackChanged)  // seconds; 0 when unknown
  Q_PROPERTY(bool playing READ playing NOTIFY playbackChanged)
  Q_PROPERTY(double elapsed READ elapsed NOTIFY playbackChanged)      // seconds; -1 unknown
  Q_PROPERTY(double sampledAt READ sampledAt NOTIFY playbackChanged)  // ms since 1970
  Q_PROPERTY(double playbackRate READ playbackRate NOTIFY playbackChanged)
  Q_PROPERTY(int shuffle READ shuffle NOTIFY playbackChanged)  // -1 unknown, else ShuffleMode
  Q_PROPERTY(int repeat READ repeat NOTIFY playbackChanged)    // -1 unknown, else RepeatMode
  Q_PROPERTY(bool canPlayPause READ canPlayPause NOTIFY trackChanged)
  Q_PROPERTY(bool canGoNext READ canGoNext NOTIFY trackChanged)
  Q_PROPERTY(bool canGoPrevious READ canGoPrevious NOTIFY trackChanged)
  Q_PROPERTY(bool canSeek READ canSeek NOTIFY trackChanged)
  Q_PROPERTY(bool canShuffle READ canShuffle NOTIFY trackChanged)
  Q_PROPERTY(bool canRepeat READ canRepeat NOTIFY trackChanged)
  // False for a player that takes no command at all: its track is shown without buttons.
  Q_PROPERTY(bool hasControls READ hasControls NOTIFY trackChanged)
  // The cover, null until known; the bar's colour, invalid for the standard one.
  Q_PROPERTY(QImage cover READ cover NOTIFY coverChanged)
  Q_PROPERTY(bool hasCover READ hasCover NOTIFY coverChanged)
  Q_PROPERTY(QColor barColor READ barColor NOTIFY coverChanged)
  // The live spectrum (a ProcessTapSpectrum) for SpectrumBars; null where there is none.
  Q_PROPERTY(QObject* spectrum READ spectrum CONSTANT)

 public:
  using Send = std::function<void(const NowPlayingCommand&)>;
  using Clock = std::function<double()>;  // seconds since 1970

  explicit NowPlayingViewModel(Send send, Clock now = nullptr, QObject* spectrum = nullptr,
                               QObject* parent = nullptr);

  QObject* spectrum() const { return spectrum_; }

  bool hasTrack() const { return snapshot_.has_value(); }
  QString title() const;
  QString artist() const;
  QString album() const;
  QString player() const;
  double duration() const;
  bool playing() const { return snapshot_ && snapshot_->isPlaying; }
  double elapsed() const;
  double sampledAt() const;
  double playbackRate() const { return snapshot_ ? snapshot_->playbackRate : 0; }
  int shuffle() const;
  int repeat() const;
  bool canPlayPause() const { return allows(NowPlayingCapabilities::playPause()); }
  bool canGoNext() const { return allows(NowPlayingCapabilities::nextTrack()); }
  bool canGoPrevious() const { return allows(NowPlayingCapabilities::previousTrack()); }
  bool canSeek() const { return allows(NowPlayingCapabilities::seek()) && duration() > 0; }
  bool canShuffle() const { return allows(NowPlayingCapabilities::shuffle()); }
  bool canRepeat() const { return allows(NowPlayingCapabilities::repeat()); }
  bool hasControls() const {
    return snapshot_ && (snapshot_->capabilities.rawValue & NowPlayingCapabilities::all().rawValue);
  }

  QImage cover() const { return cover_; }
  bool hasCover() const { return !cover_.isNull(); }
  QColor barColor() const { return barColor_; }
  void setCover(const QImage& cover, const QColor& barColor);

  const std::optional<NowPlayingSnapshot>& snapshot() const { return snapshot_; }
  // Signals only what really changed: the track's texts, or its playback.
  void setSnapshot(const std::optional<NowPlayingSnapshot>& snapshot);

  // Where the progress bar's knob is now, in seconds: the dragged or just-committed position
  // while the user scrubs, else the player's; -1 when unknown.
  Q_INVOKABLE double displayPosition() const;
  // Milliseconds until the shown position next reaches a whole second; -1 while it stands still.
  Q_INVOKABLE int millisecondsToNextSecond() const;
  Q_INVOKABLE QString elapsedText(double seconds) const;
  Q_INVOKABLE QString remainingText(double seconds) const;
  // The knob follows a drag; letting go sends the seek.
  Q_INVOKABLE void drag(double seconds);
  Q_INVOKABLE void commitDrag();

  Q_INVOKABLE void togglePlayPause();
  Q_INVOKABLE void next();
  Q_INVOKABLE void previous();
  Q_INVOKABLE void seek(double seconds);
  // Off, then tracks, then off again; repeat goes off, all, track, off.
  Q_INVOKABLE void cycleShuffle();
  Q_INVOKABLE void cycleRepeat();

 signals:
  void trackChanged();
  void playbackChanged();
  void coverChanged();

 private:
  bool allows(NowPlayingCapabilities capability) const {
    return snapshot_ && snapshot_->capabilities.contains(capability);
  }

  std::optional<double> reportedPosition() const;

  Send send_;
  Clock now_;
  std::optional<NowPlayingSnapshot> snapshot_;
  ScrubState scrub_;
  QImage cover_;
  QColor barColor_;
  QObject* spectrum_;
};

}  // namespace tindra
