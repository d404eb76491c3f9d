// TerminationSignals: SIGTERM (a logout, a service manager) and SIGINT (Ctrl+C) end Tindra the
// way quitting from its menu does, so that everything it owns is taken down on the way out: its
// helper processes stopped, its files closed. The handler only writes the signal's number into a
// pipe; the event loop reads it and tells the rest. Once one has arrived the default action is
// back, so a second one ends a Tindra stuck on its way out at once.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <array>

namespace tindra {

class TerminationSignals : public QObject {
  Q_OBJECT

 public:
  // Installs the handlers; one at a time per process.
  explicit TerminationSignals(QObject* parent = nullptr);
  // Puts the default actions back.
  ~TerminationSignals() override;

 signals:
  void received(int signal);

 private:
  void readPipe();

  std::array<int, 2> pipe_{-1, -1};
  QSocketNotifier* notifier_ = nullptr;
};

}  // namespace tindra
