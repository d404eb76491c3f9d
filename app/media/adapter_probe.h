// AdapterProbe: runs the adapter's self-test. Missing files make it "not bundled" without a run;
// otherwise the adapter runs its "test" for at most 20 seconds and its exit status decides.
// Every result comes with one sentence for the diagnostics log.
#pragma once

#include <QObject>
#include <QProcess>
#include <QTimer>
#include <functional>

#include "base/sentence.h"
#include "nowplaying/adapter_launch.h"
#include "nowplaying/adapter_probe_result.h"

namespace tindra {

class AdapterProbe : public QObject {
  Q_OBJECT

 public:
  using FileExists = std::function<bool(const std::string& path)>;

  explicit AdapterProbe(AdapterLaunch launch, FileExists fileExists = nullptr,
                        QObject* parent = nullptr);
  // Ends a test still running, without a result.
  ~AdapterProbe() override;

  const AdapterLaunch& launch() const { return launch_; }

  // Runs the test once; `finished` follows, possibly before this returns.
  void run(int timeoutMilliseconds = defaultTimeoutMilliseconds);

  static constexpr int defaultTimeoutMilliseconds = 20'000;

 signals:
  void finished(const tindra::AdapterProbeResult& result, const tindra::Sentence& text);

 private:
  void finish(AdapterProbeResult result, const Sentence& text);

  AdapterLaunch launch_;
  FileExists fileExists_;
  QProcess process_;
  QTimer deadline_;
  bool running_ = false;
};

}  // namespace tindra
