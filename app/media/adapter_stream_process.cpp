#include "media/adapter_stream_process.h"

#include <QProcess>
#include <QTimer>

#include "base/logging_categories.h"

namespace tindra {

AdapterStreamProcess::AdapterStreamProcess(QString program, QStringList arguments, QObject* parent)
    : QObject(parent),
      program_(std::move(program)),
      arguments_(std::move(arguments)),
      readingContext_(new QObject) {
  thread_.setObjectName(QStringLiteral("adapter stream"));
  readingContext_->moveToThread(&thread_);
  connect(&thread_, &QThread::finished, readingContext_, &QObject::deleteLater);
  thread_.start();
}

AdapterStreamProcess::~AdapterStreamProcess() {
  QMetaObject::invokeMethod(
      readingContext_,
      [this] {
        if (!process_) return;
        process_->disconnect();
        // Asked first, so it ends the way it means to; a child that does not is killed.
        process_->terminate();
        if (process_->waitForFinished(terminateMilliseconds)) return;
        process_->kill();
        process_->waitForFinished(1000);
      },
      Qt::BlockingQueuedConnection);
  thread_.quit();
  thread_.wait();
}

void AdapterStreamProcess::start() {
  QMetaObject::invokeMethod(readingContext_, [this] { launch(); });
}

void AdapterStreamProcess::terminate() {
  QMetaObject::invokeMethod(readingContext_, [this] {
    if (!process_ || process_->state() == QProcess::NotRunning) return;
    process_->terminate();
    QTimer::singleShot(terminateMilliseconds, process_, [process = process_] { process->kill(); });
  });
}

int AdapterStreamProcess::parseErrors() const {
  std::lock_guard guard(lock_);
  return parseErrors_;
}

int AdapterStreamProcess::stderrLines() const {
  std::lock_guard guard(lock_);
  return stderrLines_;
}

void AdapterStreamProcess::launch() {
  process_ = new QProcess(readingContext_);
  connect(process_, &QProcess::readyReadStandardOutput, readingContext_, [this] { readOutput(); });
  connect(process_, &QProcess::readyReadStandardError, readingContext_, [this] { readErrors(); });
  connect(process_, &QProcess::started, this, &AdapterStreamProcess::started);
  connect(process_, &QProcess::errorOccurred, readingContext_,
          [this](QProcess::ProcessError error) {
            if (error != QProcess::FailedToStart) return;
            QMetaObject::invokeMethod(
                this, [this, text = process_->errorString()] { emit launchFailed(text); });
          });
  connect(process_, &QProcess::finished, readingContext_,
          [this](int exitCode, QProcess::ExitStatus status) {
            readOutput();  // what arrived with the end
            const int exitStatus = status == QProcess::CrashExit ? -1 : exitCode;
            QMetaObject::invokeMethod(this, [this, exitStatus] { emit exited(exitStatus); });
          });
  // The child's standard input stays open, unwritten, for as long as we run: its end tells the
  // child we are gone, however we went.
  process_->start(program_, arguments_, QIODevice::ReadWrite);
}

void AdapterStreamProcess::readOutput() {
  const QByteArray bytes = process_->readAllStandardOutput();
  if (bytes.isEmpty()) return;
  std::lock_guard guard(lock_);
  for (AdapterMessageParser::Result& result :
       parser_.feed({bytes.constData(), size_t(bytes.size())})) {
    if (!result) {
      if (++parseErrors_ <= maxLoggedParseErrors) {
        qCWarning(lcNowPlayingAdapter).noquote()
            << "Unreadable adapter line:" << QString::fromStdString(result.error().description());
      }
      continue;
    }
    if (lastSnapshot_ && *lastSnapshot_ == *result) continue;  // the same report again
    lastSnapshot_ = *result;
    queue(std::move(*result));
  }
}

void AdapterStreamProcess::readErrors() {
  const QByteArray bytes = process_->readAllStandardError();
  std::lock_guard guard(lock_);
  stderrLines_ += static_cast<int>(bytes.count('\n'));
}

void AdapterStreamProcess::queue(Update update) {
  pending_.push_back(std::move(update));
  if (pending_.size() > maxPendingUpdates) pending_.pop_front();
  if (deliveryPosted_) return;
  deliveryPosted_ = true;
  QMetaObject::invokeMethod(
      this, [this] { deliverPending(); }, Qt::QueuedConnection);
}

void AdapterStreamProcess::deliverPending() {
  std::deque<Update> updates;
  {
    std::lock_guard guard(lock_);
    updates.swap(pending_);
    deliveryPosted_ = false;
  }
  for (const Update& update : updates) emit updated(update);
}

}  // namespace tindra
