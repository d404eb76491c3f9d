// AdapterCheck: "Check Now Playing adapter", on request from the Diagnostics window. It runs the
// self-test and then, only if that passed, the stream for a few seconds without covers, and says
// in the diagnostics log what each step found.
#pragma once

#include <QObject>
#include <QTimer>
#include <memory>

#include "base/diagnostics_log.h"
#include "media/adapter_probe.h"
#include "media/adapter_stream_process.h"

namespace tindra {

class AdapterCheck : public QObject {
  Q_OBJECT

 public:
  static constexpr int streamMilliseconds = 3000;

  AdapterCheck(AdapterLaunch launch, DiagnosticsLog& log, QObject* parent = nullptr);

  // Starts the check unless one is running; `finished` follows.
  void run(int streamFor = streamMilliseconds);
  bool isRunning() const { return running_; }

 signals:
  void finished();

 private:
  void onProbed(const AdapterProbeResult& result, const Sentence& text);
  void report(DiagnosticsLog::Outcome outcome, const Sentence& text);
  void end();

  AdapterLaunch launch_;
  DiagnosticsLog& log_;
  AdapterProbe probe_;
  std::unique_ptr<AdapterStreamProcess> stream_;
  QTimer streamTimer_;
  int streamFor_ = streamMilliseconds;
  int updates_ = 0;
  std::optional<AdapterStreamProcess::Update> last_;  // the last update, if any came
  bool running_ = false;
};

}  // namespace tindra
