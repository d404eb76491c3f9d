#include "media/adapter_now_playing_source.h"

#include <QProcess>
#include <cmath>

#include "base/logging_categories.h"
#include "nowplaying/adapter_command_line.h"

namespace tindra {

namespace {

QStringList toQt(const std::vector<std::string>& words) {
  QStringList list;
  for (const std::string& word : words) list << QString::fromStdString(word);
  return list;
}

}  // namespace

AdapterNowPlayingSource::AdapterNowPlayingSource(AdapterLaunch launch, RestartBackoff backoff,
                                                 QObject* parent)
    : NowPlayingSource(parent), launch_(std::move(launch)), backoff_(backoff) {
  setCheck(DiagnosticsLog::Outcome::ok,
           Sentence(QT_TR_NOOP("following the players through the adapter's stream"), tr));
  restartTimer_.setSingleShot(true);
  connect(&restartTimer_, &QTimer::timeout, this, &AdapterNowPlayingSource::launchStream);
}

AdapterNowPlayingSource::~AdapterNowPlayingSource() = default;

void AdapterNowPlayingSource::start() {
  if (active_ || finished_) return;
  active_ = true;
  launchStream();
}

void AdapterNowPlayingSource::stop() {
  if (finished_) return;
  finished_ = true;
  active_ = false;
  restartTimer_.stop();
  child_.reset();  // kills the child; nothing more is delivered
}

std::optional<int> AdapterNowPlayingSource::pendingRestartMilliseconds() const {
  if (!restartTimer_.isActive()) return std::nullopt;
  return restartTimer_.interval();
}

void AdapterNowPlayingSource::launchStream() {
  const auto words = AdapterCommandLine::streamArguments(debounceMilliseconds, true);
  child_ = std::make_unique<AdapterStreamProcess>(QString::fromStdString(launch_.program),
                                                  toQt(launch_.arguments(words)));
  connect(child_.get(), &AdapterStreamProcess::updated, this, &NowPlayingSource::snapshotArrived);
  connect(child_.get(), &AdapterStreamProcess::started, this,
          [] { qCInfo(lcNowPlayingAdapter) << "Adapter stream started"; });
  connect(child_.get(), &AdapterStreamProcess::launchFailed, this, [this](const QString& error) {
    qCWarning(lcNowPlayingAdapter).noquote() << "Could not launch the adapter stream:" << error;
    onExited(-1);
  });
  connect(child_.get(), &AdapterStreamProcess::exited, this, &AdapterNowPlayingSource::onExited);
  childStartedAt_.start();
  child_->start();
}

void AdapterNowPlayingSource::onExited(int exitStatus) {
  if (!active_) return;
  // The child is done; it goes once its signal has returned.
  child_.release()->deleteLater();
  const double ranFor = static_cast<double>(childStartedAt_.elapsed()) / 1000.0;
  const double delay = backoff_.nextDelay(0, ranFor);
  qCWarning(lcNowPlayingAdapter).noquote()
      << QStringLiteral("Adapter stream exited with status %1; restarting in %2 s")
             .arg(exitStatus)
             .arg(delay, 0, 'f', 1);
  restartTimer_.start(static_cast<int>(std::ceil(delay * 1000.0)));
  if (!backoff_.shouldRetest()) return;
  setCheck(
      DiagnosticsLog::Outcome::degraded,
      Sentence(QT_TR_NOOP("the adapter's stream keeps failing: testing the adapter again"), tr));
  emit repeatedFailure();
}

void AdapterNowPlayingSource::send(const NowPlayingCommand& command) {
  const auto words = AdapterCommandLine::sendArguments(command);
  if (!words) return;
  auto* process = new QProcess(this);
  connect(process, &QProcess::finished, process, &QObject::deleteLater);
  connect(process, &QProcess::errorOccurred, process, [process](QProcess::ProcessError error) {
    qCWarning(lcNowPlayingAdapter).noquote() << "Adapter command failed:" << process->errorString();
    if (error == QProcess::FailedToStart) process->deleteLater();
  });
  // A command that has not finished within its time is killed.
  QTimer::singleShot(static_cast<int>(AdapterCommandLine::commandTimeout * 1000), process,
                     [process] { process->kill(); });
  process->start(QString::fromStdString(launch_.program),
                 toQt(launch_.arguments({(*words)[0], (*words)[1]})));
}

}  // namespace tindra
