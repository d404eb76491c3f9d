#include "media/process_tap_spectrum.h"

#include <algorithm>

#include "base/activity_center.h"
#include "base/logging_categories.h"
#include "base/qt_text.h"
#include "nowplaying/pseudo_waveform.h"

namespace tindra {

ProcessTapSpectrum::ProcessTapSpectrum(std::unique_ptr<ProcessTapSession> session, int bandCount,
                                       QObject* parent)
    : QObject(parent),
      feed_(bandCount,
            [this](bool silent) {
              // The capture thread: over to the main thread.
              QMetaObject::invokeMethod(
                  this, [this, silent] { onSilence(silent); }, Qt::QueuedConnection);
            }),
      session_(std::move(session)),
      levels_(static_cast<std::size_t>(std::max(bandCount, 0))) {
  frames_.setTimerType(Qt::PreciseTimer);
  connect(&frames_, &QTimer::timeout, this, &ProcessTapSpectrum::frame);
  if (session_) {
    connect(session_.get(), &ProcessTapSession::started, this,
            [this](double rate, const QString&) { onStarted(rate); });
    connect(session_.get(), &ProcessTapSession::unavailable, this, [this](const QString& reason) {
      qCInfo(lcNowPlaying).noquote() << "live spectrum unavailable:" << reason;
      if (capturing_) setState(State::unavailable);
    });
  }
}

ProcessTapSpectrum::~ProcessTapSpectrum() {
  if (session_) session_->stop();
}

QString ProcessTapSpectrum::stateName() const {
  return toQString(rawValue(state_));
}

void ProcessTapSpectrum::setTarget(const std::optional<SpectrumTarget>& target, bool playing) {
  if (target == target_ && playing == playing_) return;
  const bool retarget = target != target_;
  target_ = target;
  playing_ = playing;
  if (retarget) capturing_ = false;  // capture again, for the new player
  update();
}

void ProcessTapSpectrum::setEnabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  emit enabledChanged();
  update();
}

void ProcessTapSpectrum::viewShown(bool shown) {
  views_ = std::max(0, views_ + (shown ? 1 : -1));
  update();
}

void ProcessTapSpectrum::update() {
  const bool wanted = enabled_ && playing_ && views_ > 0 && target_.has_value();
  if (!wanted) {
    if (capturing_ && session_) session_->stop();
    capturing_ = false;
    setState(State::off);
    return;
  }
  if (capturing_) return;
  capturing_ = true;
  if (!session_) {
    setState(State::unavailable);
    return;
  }
  session_->start(*target_, [this](std::span<const float> samples, int channels) {
    feed_.feed(samples, channels, ActivityCenter::monotonicNow());
  });
}

void ProcessTapSpectrum::onStarted(double sampleRate) {
  if (!capturing_) return;
  feed_.reset(sampleRate);
  setState(State::running);
}

void ProcessTapSpectrum::onSilence(bool silent) {
  if (state_ != State::running && state_ != State::silent) return;
  setState(silent ? State::silent : State::running);
}

void ProcessTapSpectrum::setState(State state) {
  if (state == state_) return;
  state_ = state;
  switch (state_) {
    case State::running:
      frames_.start(1000 / framesPerSecond);
      break;
    case State::unavailable:
      frames_.start(1000 / pseudoFramesPerSecond);
      break;
    case State::off:
    case State::silent:
      frames_.stop();
      rest();
      break;
  }
  emit stateChanged();
}

void ProcessTapSpectrum::frame() {
  if (state_ == State::unavailable) {
    PseudoWaveform::levels(ActivityCenter::monotonicNow(), true, levels_);
    emit levelsChanged();
  } else if (feed_.analyze(levels_)) {
    emit levelsChanged();
  }
}

void ProcessTapSpectrum::rest() {
  if (std::ranges::all_of(levels_, [](float level) { return level == 0; })) return;
  std::ranges::fill(levels_, 0.0f);
  emit levelsChanged();
}

}  // namespace tindra
