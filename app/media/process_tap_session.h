// ProcessTapSession: the audio one application plays, captured for the live spectrum: its own
// stream where the sound server can tell it apart, else what the output it plays to plays; never
// a microphone. Samples arrive on the capture's own thread; everything else on the main thread.
#pragma once

#include <QObject>
#include <QString>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>

namespace tindra {

class SharedBackends;

// Whose audio to capture: the player's process where known, and its bundle identifier (the
// desktop entry on Linux: "mpv", "firefox").
struct SpectrumTarget {
  std::optional<std::int64_t> processIdentifier;
  QString bundleIdentifier;
  QString parentBundleIdentifier;

  friend bool operator==(const SpectrumTarget&, const SpectrumTarget&) = default;
};

class ProcessTapSession : public QObject {
  Q_OBJECT

 public:
  // Capture thread: interleaved 32-bit float frames of `channels` channels. Copy and return.
  using Samples = std::function<void(std::span<const float> interleaved, int channels)>;

  // This platform's capture; none where nothing can be captured (the bars are then pseudo ones).
  static std::unique_ptr<ProcessTapSession> forPlatform(SharedBackends& shared);

  using QObject::QObject;

  // Captures `target` from now on (again, when it is already running), handing each buffer to
  // `samples`.
  virtual void start(const SpectrumTarget& target, Samples samples) = 0;
  // Ends the capture: no stream stays open and `samples` is not called any more.
  virtual void stop() = 0;

 signals:
  // Capture runs at `sampleRate` Hz; `what` names what is captured, for the log.
  void started(double sampleRate, const QString& what);
  // Nothing can be captured now (no sound server, nothing playing), with the reason.
  void unavailable(const QString& reason);
};

}  // namespace tindra
