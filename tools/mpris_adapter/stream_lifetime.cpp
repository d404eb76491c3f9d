#include "stream_lifetime.h"

#include <sys/prctl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

namespace tindra {

bool StreamLifetime::tieToParent(pid_t parentAtStart) {
  // A parent may have left SIGTERM blocked in what we inherited; it would never arrive then.
  sigset_t terminate;
  sigemptyset(&terminate);
  sigaddset(&terminate, SIGTERM);
  ::sigprocmask(SIG_UNBLOCK, &terminate, nullptr);
  if (::prctl(PR_SET_PDEATHSIG, SIGTERM) != 0) return true;  // the other two still hold
  // A parent that died before the request stood sends nothing: we were handed to init (1) or
  // a subreaper, so the parent now differs from the one at start.
  const pid_t parent = ::getppid();
  return parent == parentAtStart && parent != 1;
}

StreamLifetime::StreamLifetime(QDBusConnection bus, int input, QObject* parent)
    : QObject(parent), input_(input) {
  if (input_ >= 0) {
    inputWatch_ = new QSocketNotifier(input_, QSocketNotifier::Read, this);
    connect(inputWatch_, &QSocketNotifier::activated, this, &StreamLifetime::readInput);
  }
  // libdbus tells a dropped connection with this local signal; Qt keeps the connection object,
  // which then never delivers anything again.
  bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
              QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
              SLOT(onBusDisconnected()));
}

void StreamLifetime::onBusDisconnected() {
  emit ended(QStringLiteral("the session bus went away"));
}

// Nobody is meant to write here; whatever comes is dropped, and only the end counts.
void StreamLifetime::readInput() {
  std::array<char, 512> ignored{};
  const ssize_t count = ::read(input_, ignored.data(), ignored.size());
  if (count > 0 || (count < 0 && (errno == EINTR || errno == EAGAIN))) return;
  inputWatch_->setEnabled(false);
  emit ended(QStringLiteral("standard input closed"));
}

}  // namespace tindra
