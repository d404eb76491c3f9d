// PulseProcessTapSession: the live spectrum's capture through the sound server (PulseAudio, or
// PipeWire's pulse layer), on the connection the volume shares. It records the monitor of the
// player's own playback stream, found by the player's process (or, failing that, by its program
// name), so no other application's sound reaches the bars; where the player's stream cannot be
// found it records the monitor of the default output. Never a microphone. The capture stream is
// marked as a monitor, not a recording. Streams coming and going are followed without polling.
#pragma once

#include <pulse/pulseaudio.h>

#include <memory>
#include <vector>

#include "base/linux/pulse_connection.h"
#include "media/process_tap_session.h"

namespace tindra {

class PulseProcessTapSession final : public ProcessTapSession {
  Q_OBJECT

 public:
  // One playback stream (sink input) as the server describes it.
  struct PlaybackStream {
    std::uint32_t index = PA_INVALID_INDEX;
    std::uint32_t sink = PA_INVALID_INDEX;
    std::int64_t processIdentifier = 0;  // 0: not given
    QString binary;                      // "mpv", "firefox-esr"
    QString applicationId;               // "org.mozilla.firefox", often empty
    bool corked = false;                 // paused by its application
    pa_sample_spec format{};             // the stream's own format
  };

  explicit PulseProcessTapSession(std::shared_ptr<PulseConnection> connection,
                                  QObject* parent = nullptr);
  ~PulseProcessTapSession() override;

  void start(const SpectrumTarget& target, Samples samples) override;
  void stop() override;

  // The stream to capture for `target`: one of its process's own, else one of its program's,
  // those that are not paused first; none when neither plays.
  static std::optional<PlaybackStream> choose(const std::vector<PlaybackStream>& streams,
                                              const SpectrumTarget& target);

 private:
  struct Capture;
  struct Source {
    std::uint32_t monitor = PA_INVALID_INDEX;  // the sink's monitor source
    pa_sample_spec format{};
    QString sinkName;
  };

  void refresh();
  void onStreams(const std::vector<PlaybackStream>& streams);
  // Captures the monitor of `sink` (an index, or "@DEFAULT_SINK@"): of the stream `streamIndex`
  // alone where it is valid, in `format` where it is given, else in the sink's format.
  void readSink(const QByteArray& sink, std::uint32_t streamIndex,
                std::optional<pa_sample_spec> format, const QString& what);
  void capture(const Source& source, std::uint32_t streamIndex, const QString& what);
  void dropCapture();
  static void endWhenConnected(pa_stream* stream, void*);

  std::shared_ptr<PulseConnection> connection_;
  bool active_ = false;
  SpectrumTarget target_;
  Samples samples_;
  std::unique_ptr<Capture> capture_;            // the open capture stream, if any
  std::uint32_t capturing_ = PA_INVALID_INDEX;  // the stream it monitors; invalid: the output's
  bool lookingUp_ = false;                      // a capture of `lookingFor_` is on its way
  std::uint32_t lookingFor_ = PA_INVALID_INDEX;
};

}  // namespace tindra
