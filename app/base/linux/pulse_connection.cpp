#include "base/linux/pulse_connection.h"

#include "base/shared_backends.h"

#include "base/logging_categories.h"

namespace tindra {

PulseConnection::PulseConnection(QObject* parent) : QObject(parent) {
  loop_ = pa_threaded_mainloop_new();
  pa_threaded_mainloop_start(loop_);
  retry_.setSingleShot(true);
  retry_.setInterval(reconnectMilliseconds);
  connect(&retry_, &QTimer::timeout, this, &PulseConnection::connectNow);
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
      post([this] { retry_.start(); });
    }
  }
  pa_threaded_mainloop_unlock(loop_);
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
        connection->retry_.start();
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
