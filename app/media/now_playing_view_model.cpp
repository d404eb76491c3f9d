#include "media/now_playing_view_model.h"

#include <QDateTime>
#include <algorithm>
#include <cmath>

#include "nowplaying/playback_time_format.h"

namespace tindra {

namespace {

QString text(const std::optional<std::string>& value) {
  return value ? QString::fromStdString(*value) : QString();
}

// Whether two snapshots differ in what the views show about the track (not its playback).
bool sameTrackFace(const NowPlayingSnapshot& a, const NowPlayingSnapshot& b) {
  return a.title == b.title && a.artist == b.artist && a.album == b.album &&
         a.bundleIdentifier == b.bundleIdentifier && a.duration == b.duration &&
         a.capabilities == b.capabilities;
}

bool samePlayback(const NowPlayingSnapshot& a, const NowPlayingSnapshot& b) {
  return a.isPlaying == b.isPlaying && a.elapsed == b.elapsed &&
         a.elapsedTimestamp == b.elapsedTimestamp && a.playbackRate == b.playbackRate &&
         a.shuffle == b.shuffle && a.repeatMode == b.repeatMode;
}

}  // namespace

NowPlayingViewModel::NowPlayingViewModel(Send send, Clock now, QObject* spectrum, QObject* parent)
    : QObject(parent), send_(std::move(send)), now_(std::move(now)), spectrum_(spectrum) {
  if (!now_) {
    now_ = [] { return static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000.0; };
  }
}

std::optional<double> NowPlayingViewModel::reportedPosition() const {
  return snapshot_ ? snapshot_->position(now_()) : std::nullopt;
}

double NowPlayingViewModel::displayPosition() const {
  return scrub_.displayPosition(reportedPosition(), playing(), now_()).value_or(-1);
}

int NowPlayingViewModel::millisecondsToNextSecond() const {
  if (!playing() || scrub_.dragPosition || playbackRate() <= 0) return -1;
  const double position = displayPosition();
  if (position < 0) return -1;
  const double toNext = (std::floor(position) + 1 - position) / playbackRate();
  return static_cast<int>(std::ceil(toNext * 1000.0)) + 1;
}

QString NowPlayingViewModel::elapsedText(double seconds) const {
  return QString::fromStdString(PlaybackTimeFormat::elapsed(seconds));
}

QString NowPlayingViewModel::remainingText(double seconds) const {
  return QString::fromStdString(PlaybackTimeFormat::remaining(seconds, duration()));
}

void NowPlayingViewModel::drag(double seconds) {
  scrub_.dragPosition = std::clamp(seconds, 0.0, std::max(0.0, duration()));
  emit playbackChanged();
}

void NowPlayingViewModel::commitDrag() {
  if (!scrub_.dragPosition) return;
  const double target = *scrub_.dragPosition;
  scrub_.dragPosition.reset();
  scrub_.pendingTarget = target;
  scrub_.pendingSince = now_();
  send_(NowPlayingCommand::seek(target));
  emit playbackChanged();
}

QString NowPlayingViewModel::title() const {
  return snapshot_ ? QString::fromStdString(snapshot_->title) : QString();
}
QString NowPlayingViewModel::artist() const {
  return snapshot_ ? text(snapshot_->artist) : QString();
}
QString NowPlayingViewModel::album() const {
  return snapshot_ ? text(snapshot_->album) : QString();
}
QString NowPlayingViewModel::player() const {
  return snapshot_ ? text(snapshot_->bundleIdentifier) : QString();
}
double NowPlayingViewModel::duration() const {
  return snapshot_ ? snapshot_->duration.value_or(0) : 0;
}
double NowPlayingViewModel::elapsed() const {
  return snapshot_ ? snapshot_->elapsed.value_or(-1) : -1;
}
double NowPlayingViewModel::sampledAt() const {
  return snapshot_ ? snapshot_->elapsedTimestamp.value_or(0) * 1000.0 : 0;
}
int NowPlayingViewModel::shuffle() const {
  return snapshot_ && snapshot_->shuffle ? static_cast<int>(*snapshot_->shuffle) : -1;
}
int NowPlayingViewModel::repeat() const {
  return snapshot_ && snapshot_->repeatMode ? static_cast<int>(*snapshot_->repeatMode) : -1;
}

void NowPlayingViewModel::setSnapshot(const std::optional<NowPlayingSnapshot>& snapshot) {
  const bool trackChanges = snapshot.has_value() != snapshot_.has_value() ||
                            (snapshot && !sameTrackFace(*snapshot, *snapshot_));
  const bool playbackChanges = snapshot.has_value() != snapshot_.has_value() ||
                               (snapshot && !samePlayback(*snapshot, *snapshot_));
  snapshot_ = snapshot;
  if (trackChanges) scrub_ = ScrubState();
  scrub_.settle(reportedPosition(), playing(), now_());
  if (trackChanges) emit trackChanged();
  if (playbackChanges) emit playbackChanged();
}

void NowPlayingViewModel::setCover(const QImage& cover, const QColor& barColor) {
  if (cover == cover_ && barColor == barColor_) return;
  cover_ = cover;
  barColor_ = barColor;
  emit coverChanged();
}

void NowPlayingViewModel::togglePlayPause() {
  send_(NowPlayingCommand::togglePlayPause());
}
void NowPlayingViewModel::next() {
  send_(NowPlayingCommand::nextTrack());
}
void NowPlayingViewModel::previous() {
  send_(NowPlayingCommand::previousTrack());
}
void NowPlayingViewModel::seek(double seconds) {
  send_(NowPlayingCommand::seek(seconds));
}

void NowPlayingViewModel::cycleShuffle() {
  const bool on = snapshot_ && snapshot_->shuffle && *snapshot_->shuffle != ShuffleMode::off;
  send_(NowPlayingCommand::setShuffle(on ? ShuffleMode::off : ShuffleMode::tracks));
}

void NowPlayingViewModel::cycleRepeat() {
  const RepeatMode current =
      snapshot_ && snapshot_->repeatMode ? *snapshot_->repeatMode : RepeatMode::off;
  const RepeatMode next = current == RepeatMode::off   ? RepeatMode::all
                          : current == RepeatMode::all ? RepeatMode::track
                                                       : RepeatMode::off;
  send_(NowPlayingCommand::setRepeat(next));
}

}  // namespace tindra
