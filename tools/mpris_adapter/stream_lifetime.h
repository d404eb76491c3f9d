// StreamLifetime: the stream ends with whoever reads it. Nothing reads the stream once the app
// that started it is gone, and nothing is left to follow once the bus is, so the stream quits on
// any of: its parent ending (the kernel's parent-death signal, which the default action of
// SIGTERM turns into an exit), the end of its standard input (the parent holds the pipe's other
// end, so it closes when the parent goes, however it went), and its bus connection dropping.
// Standard input is watched in the event loop, never read blocking, so the bus keeps flowing.
// A stream run by hand from a terminal lasts until Ctrl+D or Ctrl+C.
#pragma once

#include <sys/types.h>
#include <QDBusConnection>
#include <QObject>
#include <QSocketNotifier>

namespace tindra {

class StreamLifetime : public QObject {
  Q_OBJECT

 public:
  // Asks for SIGTERM when the parent ends. `parentAtStart` is the parent seen as early as
  // possible; false when the parent is already gone by the time the request stands (then no
  // signal will ever come).
  static bool tieToParent(pid_t parentAtStart);

  // `input` is the descriptor to watch for its end, or -1 for none.
  StreamLifetime(QDBusConnection bus, int input, QObject* parent = nullptr);

 signals:
  // Time to quit; `reason` is a few words for the log.
  void ended(const QString& reason);

 private slots:
  void onBusDisconnected();

 private:
  void readInput();

  int input_;
  QSocketNotifier* inputWatch_ = nullptr;
};

}  // namespace tindra
