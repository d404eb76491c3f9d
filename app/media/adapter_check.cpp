#include "media/adapter_check.h"

#include "base/logging_categories.h"
#include "nowplaying/adapter_command_line.h"

namespace tindra {

namespace {

const QString source = QStringLiteral("Check Now Playing adapter");

}  // namespace

AdapterCheck::AdapterCheck(AdapterLaunch launch, DiagnosticsLog& log, QObject* parent)
    : QObject(parent), launch_(launch), log_(log), probe_(std::move(launch)) {
  streamTimer_.setSingleShot(true);
  connect(&probe_, &AdapterProbe::finished, this, &AdapterCheck::onProbed);
  connect(&streamTimer_, &QTimer::timeout, this, [this] {
    const Sentence playing =
        last_ && *last_
            ? Sentence::verbatim(QStringLiteral("\"%1\" %2")
                                     .arg(QString::fromStdString((*last_)->title),
                                          (*last_)->isPlaying ? QStringLiteral("playing")
                                                              : QStringLiteral("paused")))
            : Sentence(QT_TR_NOOP("nothing playing"), tr);
    report(
        updates_ > 0 ? DiagnosticsLog::Outcome::ok : DiagnosticsLog::Outcome::failed,
        Sentence(QT_TR_NOOP("Stream gave %1 update(s) and %2 unreadable line(s) in %3 s: %4."), tr)
            .arg(updates_)
            .arg(stream_->parseErrors())
            .arg(streamFor_ / 1000.0, 0, 'f', 1)
            .arg(playing));
    end();
  });
}

void AdapterCheck::run(int streamFor) {
  if (running_) return;
  running_ = true;
  streamFor_ = streamFor;
  updates_ = 0;
  last_.reset();
  probe_.run();
}

void AdapterCheck::onProbed(const AdapterProbeResult& result, const Sentence& text) {
  const bool passed = result == AdapterProbeResult::passed();
  report(passed ? DiagnosticsLog::Outcome::ok : DiagnosticsLog::Outcome::failed, text);
  if (!passed) {
    report(DiagnosticsLog::Outcome::failed,
           Sentence(QT_TR_NOOP("Stream skipped because the self-test failed."), tr));
    end();
    return;
  }
  QStringList words;
  for (const std::string& word :
       launch_.arguments(AdapterCommandLine::streamArguments(100, false))) {
    words << QString::fromStdString(word);
  }
  stream_ = std::make_unique<AdapterStreamProcess>(QString::fromStdString(launch_.program), words);
  connect(stream_.get(), &AdapterStreamProcess::updated, this,
          [this](const AdapterStreamProcess::Update& update) {
            ++updates_;
            last_ = update;
          });
  connect(stream_.get(), &AdapterStreamProcess::launchFailed, this, [this](const QString& error) {
    streamTimer_.stop();
    report(DiagnosticsLog::Outcome::failed,
           Sentence(QT_TR_NOOP("Could not launch stream: %1"), tr).arg(error));
    end();
  });
  stream_->start();
  streamTimer_.start(streamFor_);
}

void AdapterCheck::report(DiagnosticsLog::Outcome outcome, const Sentence& text) {
  log_.record(lcNowPlayingAdapter(), source, outcome, text);
}

void AdapterCheck::end() {
  if (stream_) stream_.release()->deleteLater();
  running_ = false;
  emit finished();
}

}  // namespace tindra
