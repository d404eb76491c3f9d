// AdapterStreamProcess: one run of the adapter's stream. The child's output is read and parsed
// on a thread of its own under a lock, so a large cover never stalls the notch; a snapshot that
// differs from the last one delivered is queued for the main thread, which keeps only the newest
// four waiting. A restarted stream is a new AdapterStreamProcess with a fresh parser. The child
// is started on the reading thread, which the kernel then counts as its parent for the child's
// parent-death signal: the thread must outlive the child, as the destructor sees to.
#pragma once

#include <QObject>
#include <QStringList>
#include <QThread>
#include <deque>
#include <mutex>
#include <optional>

#include "nowplaying/adapter_message_parser.h"

class QProcess;

namespace tindra {

class AdapterStreamProcess : public QObject {
  Q_OBJECT

 public:
  using Update = std::optional<NowPlayingSnapshot>;
  static constexpr std::size_t maxPendingUpdates = 4;
  static constexpr int maxLoggedParseErrors = 20;
  // How long the child has to end once asked before it is killed.
  static constexpr int terminateMilliseconds = 500;

  AdapterStreamProcess(QString program, QStringList arguments, QObject* parent = nullptr);
  // Ends the child if it still runs (asked, then killed after terminateMilliseconds) and waits
  // for the reading thread.
  ~AdapterStreamProcess() override;

  void start();
  // Asks the child to end; it is killed if it has not within terminateMilliseconds.
  void terminate();

  int parseErrors() const;
  int stderrLines() const;

 signals:
  void started();
  void launchFailed(const QString& error);
  // The child ended: its exit status, or -1 when it crashed.
  void exited(int exitStatus);
  void updated(const tindra::AdapterStreamProcess::Update& update);

 private:
  // Reading thread.
  void launch();
  void readOutput();
  void readErrors();
  void queue(Update update);
  // Main thread.
  void deliverPending();

  QString program_;
  QStringList arguments_;
  QThread thread_;
  QObject* readingContext_;  // lives on thread_, parent of the child
  QProcess* process_ = nullptr;

  mutable std::mutex lock_;
  AdapterMessageParser parser_;
  std::optional<Update> lastSnapshot_;  // nothing delivered yet is not "nothing playing"
  std::deque<Update> pending_;
  bool deliveryPosted_ = false;
  int parseErrors_ = 0;
  int stderrLines_ = 0;
};

}  // namespace tindra
