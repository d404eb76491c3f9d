#include "base/linux/pulse_connection.h"

#include <QFileInfo>
#include <algorithm>

#include "base/logging_categories.h"
#include "base/shared_backends.h"

namespace tindra {

namespace {

// The local socket libpulse connects to: PULSE_SERVER's when it names one ("unix:/path"), else
// the session's ("$XDG_RUNTIME_DIR/pulse/native"); empty for a server elsewhere.
QString serverSocket() {
  const QString server = qEnvironmentVariable("PULSE_SERVER");
  if (server.startsWith(QLatin1String("unix:"))) return server.mid(5);
  if (!server.isEmpty()) return {};
  const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
  return runtime.isEmpty() ? QString() : runtime + QStringLiteral("/pulse/native");
}

}  // namespace

PulseConnection::PulseConnection(QObject* parent)
    : QObject(parent), serverFolder_(this), socket_(serverSocket()) {
  loop_ = pa_threaded_mainloop_new();
  pa_threaded_mainloop_start(loop_);
  retry_.setSingleShot(true);
  connect(&retry_, &QTimer::timeout, this, &PulseConnection::connectNow);
  connect(&serverFolder_, &QFileSystemWatcher::directoryChanged, this,
          &PulseConnection::serverFolderChanged);
}

PulseConnection::~PulseConnection() {
  dropContext();
  pa_threaded_mainloop_stop(loop_);
  pa_threaded_mainloop_free(loop_);
}

void PulseConnection::start() {
  connectNow();
}

void PulseConnection::connectNow() {
  pa_threaded_mainloop_lock(loop_);
  if (context_ == nullptr) {
    context_ = pa_context_new(pa_threaded_mainloop_get_api(loop_), "Tindra");
    pa_context_set_state_callback(context_, &PulseConnection::onState, this);
    pa_context_set_subscribe_callback(context_, &PulseConnection::onEvent, this);
    if (pa_context_connect(context_, nullptr, PA_CONTEXT_NOFLAGS, nullptr) < 0) {
      qCInfo(lcHud) << "sound server not reachable:" << pa_strerror(pa_context_errno(context_));
      pa_context_unref(context_);
      context_ = nullptr;
      post([this] { waitForServer(); });
    }
  }
  pa_threaded_mainloop_unlock(loop_);
}

void PulseConnection::waitForServer() {
  emit unanswered();
  if (socket_.isEmpty()) {
    retry_.start(unwatchedReconnectMilliseconds);
    return;
  }
  // The socket there but no answer: the server is starting (or died and left it), so knock again
  // soon, then less often. No socket: the folder that will hold it (or the folder above, until
  // that one is made) says when it comes.
  if (QFileInfo::exists(socket_)) {
    retry_.start(std::min(reconnectMilliseconds << std::min(unanswered_++, 5),
                          unwatchedReconnectMilliseconds));
  }
  QString folder = QFileInfo(socket_).absolutePath();
  if (!QFileInfo::exists(folder)) folder = QFileInfo(folder).absolutePath();
  if (!serverFolder_.directories().contains(folder)) {
    if (!serverFolder_.directories().isEmpty()) {
      serverFolder_.removePaths(serverFolder_.directories());
    }
    serverFolder_.addPath(folder);
  }
}

void PulseConnection::serverFolderChanged() {
  if (ready_) return;
  if (QFileInfo::exists(socket_)) {
    retry_.stop();
    connectNow();
  } else {
    waitForServer();  // perhaps the socket's own folder was just made
  }
}

void PulseConnection::dropContext() {
  pa_threaded_mainloop_lock(loop_);
  if (context_ != nullptr) {
    pa_context_set_state_callback(context_, nullptr, nullptr);
    pa_context_set_subscribe_callback(context_, nullptr, nullptr);
    pa_context_disconnect(context_);
    pa_context_unref(context_);
    context_ = nullptr;
  }
  pa_threaded_mainloop_unlock(loop_);
}

void PulseConnection::run(const std::function<void(pa_context*)>& work) {
  pa_threaded_mainloop_lock(loop_);
  if (context_ != nullptr && pa_context_get_state(context_) == PA_CONTEXT_READY) work(context_);
  pa_threaded_mainloop_unlock(loop_);
}

void PulseConnection::locked(const std::function<void()>& work) {
  pa_threaded_mainloop_lock(loop_);
  work();
  pa_threaded_mainloop_unlock(loop_);
}

void PulseConnection::post(std::function<void()> work) {
  QMetaObject::invokeMethod(this, std::move(work), Qt::QueuedConnection);
}

// libpulse's thread, lock held.
void PulseConnection::onState(pa_context* context, void* self) {
  auto* connection = static_cast<PulseConnection*>(self);
  switch (pa_context_get_state(context)) {
    case PA_CONTEXT_READY: {
      const auto mask = static_cast<pa_subscription_mask_t>(PA_SUBSCRIPTION_MASK_SINK |
                                                            PA_SUBSCRIPTION_MASK_SERVER |
                                                            PA_SUBSCRIPTION_MASK_SINK_INPUT);
      pa_operation_unref(pa_context_subscribe(context, mask, nullptr, nullptr));
      connection->post([connection] {
        connection->retry_.stop();
        connection->unanswered_ = 0;
        if (!connection->serverFolder_.directories().isEmpty()) {
          connection->serverFolder_.removePaths(connection->serverFolder_.directories());
        }
        connection->ready_ = true;
        emit connection->readyChanged(true);
      });
      break;
    }
    case PA_CONTEXT_FAILED:
    case PA_CONTEXT_TERMINATED:
      // The server went away (or never came): start over in a while.
      connection->post([connection] {
        connection->dropContext();
        if (connection->ready_) {
          connection->ready_ = false;
          emit connection->readyChanged(false);
        }
        connection->waitForServer();
      });
      break;
    default:
      break;
  }
}

void PulseConnection::onEvent(pa_context*, pa_subscription_event_type_t type, uint32_t,
                              void* self) {
  auto* connection = static_cast<PulseConnection*>(self);
  if ((type & PA_SUBSCRIPTION_EVENT_FACILITY_MASK) == PA_SUBSCRIPTION_EVENT_SINK_INPUT) {
    connection->post([connection] { emit connection->streamsChanged(); });
  } else {
    connection->post([connection] { emit connection->changed(); });
  }
}

std::shared_ptr<PulseConnection> PulseConnection::shared(SharedBackends& shared) {
  return shared.get<PulseConnection>([] { return std::make_shared<PulseConnection>(); });
}

}  // namespace tindra
