// TestPointer: tools/test_pointer run as a test's second pointer on a Wayland compositor without
// input devices: moves, presses and file drags out of a surface of its own, each command waited
// for until the compositor has handled it, and the drag's events (accepted, action, dropped,
// finished, cancelled) as they come.
#pragma once

#include <QPoint>
#include <QProcess>
#include <QStringList>

namespace tindra {

class TestPointer {
 public:
  TestPointer();
  ~TestPointer();

  bool running() const { return process_.state() == QProcess::Running; }
  // One command line ("move 960 10", "press", "drag-files file:///etc/hostname"); true on "ok".
  bool send(const QString& command);
  // Waits (up to `timeoutMs`) for "event: `event`" ("action copy", "finished").
  bool waitForEvent(const QString& event, int timeoutMs = 5000);
  const QStringList& events() const { return events_; }

 private:
  // The next answer to a command, with the events that came before it kept.
  QString nextAnswer(int timeoutMs);
  void readLines();

  QProcess process_;
  QStringList lines_;
  QStringList events_;
};

}  // namespace tindra
