// PipeReader: reads a pipe to its end without blocking the event loop, then hands over what came.
// Another program writes the other end (a dragged file list); one that never closes it is given
// up on after a while, so a stuck writer costs nothing but the drop.
#pragma once

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>

namespace tindra {

class PipeReader final : public QObject {
  Q_OBJECT

 public:
  // Takes `fd`, the pipe's reading end; `done` gets everything read, or nothing after a failure
  // or `patienceMs` without an end.
  PipeReader(int fd, std::function<void(std::optional<QByteArray>)> done, int patienceMs = 5000);
  ~PipeReader() override;

 private:
  void read();
  void finish(std::optional<QByteArray> result);

  int fd_;
  QByteArray data_;
  QSocketNotifier notifier_;
  QTimer patience_;
  std::function<void(std::optional<QByteArray>)> done_;
};

}  // namespace tindra
