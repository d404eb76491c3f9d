#include "base/termination_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>

namespace tindra {

namespace {

constexpr std::array handled{SIGTERM, SIGINT};
int writeEnd = -1;  // for the handler, which can reach nothing else

void onSignal(int signal) {
  const int saved = errno;
  const auto number = static_cast<unsigned char>(signal);
  [[maybe_unused]] const ssize_t written = ::write(writeEnd, &number, 1);
  errno = saved;
}

void setAction(int signal, void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  sigemptyset(&action.sa_mask);
  action.sa_flags = SA_RESTART;
  ::sigaction(signal, &action, nullptr);
}

}  // namespace

TerminationSignals::TerminationSignals(QObject* parent) : QObject(parent) {
  if (::pipe2(pipe_.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
    qWarning("Cannot watch for SIGTERM and SIGINT: %s", std::strerror(errno));
    return;
  }
  writeEnd = pipe_[1];
  notifier_ = new QSocketNotifier(pipe_[0], QSocketNotifier::Read, this);
  connect(notifier_, &QSocketNotifier::activated, this, &TerminationSignals::readPipe);
  for (const int signal : handled) setAction(signal, onSignal);
}

TerminationSignals::~TerminationSignals() {
  if (notifier_ == nullptr) return;
  for (const int signal : handled) setAction(signal, SIG_DFL);
  writeEnd = -1;
  ::close(pipe_[0]);
  ::close(pipe_[1]);
}

void TerminationSignals::readPipe() {
  unsigned char number = 0;
  while (::read(pipe_[0], &number, 1) == 1) {
    for (const int signal : handled) setAction(signal, SIG_DFL);
    emit received(number);
  }
}

}  // namespace tindra
