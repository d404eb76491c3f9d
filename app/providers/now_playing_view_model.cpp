#include "providers/now_playing_view_model.h"

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

NowPlayingViewModel::NowPlayingViewModel(Send send, QObject* parent)
    : QObject(parent), send_(std::move(send)) {}

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
  if (trackChanges) emit trackChanged();
  if (playbackChanges) emit playbackChanged();
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
