// ProcessTapSpectrum: the live spectrum of the playing application's audio, for the bars on the
// notch's right ear. It captures only while the setting is on, a track plays and a view showing
// the bars is on screen; it stops analysing and drawing while the capture is silent and starts
// again when sound returns. The bars update at most 30 times a second, from one timer, and only
// when they moved. Where nothing can be captured it draws pseudo bars, marked as such.
#pragma once

#include <QObject>
#include <QTimer>
#include <array>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "base/enum_table.h"
#include "media/process_tap_session.h"
#include "media/spectrum_feed.h"

namespace tindra {

class ProcessTapSpectrum : public QObject {
  Q_OBJECT
  Q_PROPERTY(QString state READ stateName NOTIFY stateChanged)
  Q_PROPERTY(bool enabled READ enabled NOTIFY enabledChanged)

 public:
  enum class State { off, running, silent, unavailable };
  static constexpr int framesPerSecond = 20;
  static constexpr int pseudoFramesPerSecond = 15;

  // Without a session (a platform or fake without capture) the bars are always pseudo ones.
  ProcessTapSpectrum(std::unique_ptr<ProcessTapSession> session, int bandCount,
                     QObject* parent = nullptr);
  ~ProcessTapSpectrum() override;

  // What plays (none: nothing), and whether it plays.
  void setTarget(const std::optional<SpectrumTarget>& target, bool playing);
  // The liveWaveform setting.
  void setEnabled(bool enabled);
  // A view showing the bars came on screen (true) or left it (false).
  void viewShown(bool shown);

  State state() const { return state_; }
  QString stateName() const;
  bool enabled() const { return enabled_; }
  // The bars, 0 ... 1; valid until the next levelsChanged.
  std::span<const float> levels() const { return levels_; }

 signals:
  void stateChanged();
  void enabledChanged();
  void levelsChanged();

 private:
  void update();
  void setState(State state);
  void onStarted(double sampleRate);
  void onSilence(bool silent);
  void frame();
  void rest();

  SpectrumFeed feed_;  // before the session: the session's thread feeds it until it stops
  std::unique_ptr<ProcessTapSession> session_;
  QTimer frames_;
  std::optional<SpectrumTarget> target_;
  bool playing_ = false;
  bool enabled_ = false;
  int views_ = 0;
  bool capturing_ = false;
  State state_ = State::off;
  std::vector<float> levels_;
};

template <>
struct EnumTable<ProcessTapSpectrum::State> {
  using E = ProcessTapSpectrum::State;
  static constexpr std::array cases{EnumCase{E::off, "off"}, EnumCase{E::running, "running"},
                                    EnumCase{E::silent, "silent"},
                                    EnumCase{E::unavailable, "unavailable"}};
};

}  // namespace tindra
