#include "media/adapter_probe.h"

#include <QFileInfo>

namespace tindra {

AdapterProbe::AdapterProbe(AdapterLaunch launch, FileExists fileExists, QObject* parent)
    : QObject(parent), launch_(std::move(launch)), fileExists_(std::move(fileExists)) {
  if (!fileExists_) {
    fileExists_ = [](const std::string& path) {
      return QFileInfo::exists(QString::fromStdString(path));
    };
  }
  deadline_.setSingleShot(true);
  connect(&deadline_, &QTimer::timeout, this, [this] {
    process_.kill();
    finish(AdapterProbeResult::timedOut(),
           Sentence(QT_TR_NOOP("The adapter's self-test did not finish within %1 s."), tr)
               .arg(deadline_.interval() / 1000));
  });
  connect(&process_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
    if (error != QProcess::FailedToStart) return;
    finish(AdapterProbeResult::launchFailed(),
           Sentence(QT_TR_NOOP("Could not launch %1: %2"), tr)
               .arg(QString::fromStdString(launch_.program), process_.errorString()));
  });
  connect(&process_, &QProcess::finished, this, [this](int exitCode, QProcess::ExitStatus status) {
    if (status == QProcess::NormalExit && exitCode == 0) {
      finish(AdapterProbeResult::passed(),
             Sentence(QT_TR_NOOP("The adapter's self-test passed."), tr));
      return;
    }
    const int exitStatus = status == QProcess::CrashExit ? -1 : exitCode;
    finish(AdapterProbeResult::failed(exitStatus),
           Sentence(QT_TR_NOOP("The adapter's self-test failed with exit status %1."), tr)
               .arg(exitStatus));
  });
}

AdapterProbe::~AdapterProbe() {
  process_.disconnect(this);
  process_.kill();
  process_.waitForFinished(1000);
}

void AdapterProbe::run(int timeoutMilliseconds) {
  if (running_) return;
  QStringList missing;
  for (const std::string& path : launch_.requiredFiles) {
    if (!fileExists_(path)) missing << QString::fromStdString(path);
  }
  running_ = true;
  if (!missing.isEmpty()) {
    finish(
        AdapterProbeResult::notBundled(),
        Sentence(QT_TR_NOOP("Adapter not bundled; missing: %1 %2"), tr)
            .arg(missing.join(QStringLiteral(", ")), QString::fromStdString(launch_.missingHint)));
    return;
  }
  QStringList arguments;
  for (const std::string& word : launch_.testArguments()) arguments << QString::fromStdString(word);
  deadline_.start(timeoutMilliseconds);
  process_.start(QString::fromStdString(launch_.program), arguments, QIODevice::NotOpen);
}

void AdapterProbe::finish(AdapterProbeResult result, const Sentence& text) {
  if (!running_) return;  // a kill after the deadline also ends in `finished`
  running_ = false;
  deadline_.stop();
  emit finished(result, text);
}

}  // namespace tindra
