#include "base/linux/pipe_reader.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace tindra {

PipeReader::PipeReader(int fd, std::function<void(std::optional<QByteArray>)> done, int patienceMs)
    : fd_(fd), notifier_(fd, QSocketNotifier::Read), done_(std::move(done)) {
  fcntl(fd_, F_SETFL, fcntl(fd_, F_GETFL) | O_NONBLOCK);
  connect(&notifier_, &QSocketNotifier::activated, this, &PipeReader::read);
  patience_.setSingleShot(true);
  connect(&patience_, &QTimer::timeout, this, [this] { finish(std::nullopt); });
  patience_.start(patienceMs);
}

PipeReader::~PipeReader() {
  if (fd_ >= 0) close(fd_);
}

void PipeReader::read() {
  char chunk[4096];
  for (;;) {
    const ssize_t got = ::read(fd_, chunk, sizeof chunk);
    if (got > 0) {
      data_.append(chunk, got);
      continue;
    }
    if (got == 0) return finish(std::move(data_));
    if (errno == EINTR) continue;
    if (errno != EAGAIN) finish(std::nullopt);
    return;
  }
}

// `done_` may delete this reader; nothing is touched after it.
void PipeReader::finish(std::optional<QByteArray> result) {
  notifier_.setEnabled(false);
  patience_.stop();
  if (auto done = std::exchange(done_, nullptr)) done(std::move(result));
}

}  // namespace tindra
