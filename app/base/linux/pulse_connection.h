// PulseConnection: Tindra's one connection to the sound server through libpulse (PulseAudio, or
// PipeWire's pulse layer), on libpulse's own thread. It connects when the server is there,
// reconnects when the server restarts, and reports the server's sink and server events on the
// main thread. The volume, the sounds and the live spectrum share one (PulseConnection::shared).
// While there is no server it watches the folder where the server's socket appears instead of
// knocking every few seconds, so a machine without one sees no wake-ups from Tindra; it knocks
// again, from every two seconds to every minute, only while the socket is there but the server
// does not answer.
#pragma once

#include <pulse/pulseaudio.h>

#include <QFileSystemWatcher>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <functional>
#include <memory>

namespace tindra {

class SharedBackends;

class PulseConnection : public QObject {
  Q_OBJECT

 public:
  static constexpr int reconnectMilliseconds = 2000;
  // For a server the folder watch cannot see (one over TCP, or a socket named elsewhere).
  static constexpr int unwatchedReconnectMilliseconds = 60000;

  explicit PulseConnection(QObject* parent = nullptr);
  ~PulseConnection() override;

  // The one connection of the program, shared by the volume, the sounds and the live spectrum.
  static std::shared_ptr<PulseConnection> shared(SharedBackends& shared);

  void start();
  bool isReady() const { return ready_; }

  // Runs `work` on libpulse's thread with its lock held; `work` gets the context, which is
  // ready. Nothing runs while the connection is down.
  void run(const std::function<void(pa_context*)>& work);
  // Runs `work` with libpulse's lock held, whether or not the server is connected: for releasing
  // streams, which must not race their callbacks.
  void locked(const std::function<void()>& work);

  // Hands `work` to the main thread; for libpulse callbacks.
  void post(std::function<void()> work);

 signals:
  void readyChanged(bool ready);
  // A try to connect found no server; the next one is on its way.
  void unanswered();
  // A sink or the server (its default sink) changed.
  void changed();
  // A playback stream (sink input) came, went or changed.
  void streamsChanged();

 private:
  void connectNow();
  void dropContext();
  // Aims the retry and the folder watch at the server's coming.
  void waitForServer();
  void serverFolderChanged();
  static void onState(pa_context* context, void* self);
  static void onEvent(pa_context* context, pa_subscription_event_type_t type, uint32_t index,
                      void* self);

  pa_threaded_mainloop* loop_ = nullptr;
  pa_context* context_ = nullptr;  // guarded by the loop's lock
  bool ready_ = false;             // main thread
  QTimer retry_;
  QFileSystemWatcher serverFolder_;
  int unanswered_ = 0;  // knocks at a socket without an answer since the server last answered
  QString socket_;      // where the server's socket appears; empty when it is not a local one
};

// A property of a sink or stream as text; empty when it is not set.
inline QString pulseProperty(const pa_proplist* properties, const char* key) {
  const char* value = pa_proplist_gets(properties, key);
  return value ? QString::fromUtf8(value) : QString();
}

// The user data of a libpulse request whose answer goes back to `receiver` on the main thread:
// libpulse's thread never touches the receiver, and an answer that arrives after the receiver is
// gone is dropped.
template <class Receiver>
struct PulseRequest {
  PulseConnection* connection;
  QPointer<Receiver> receiver;

  void answer(std::function<void(Receiver&)> work) {
    connection->post([receiver = receiver, work = std::move(work)] {
      if (receiver) work(*receiver);
    });
  }
};

// Gives `request`, the user data of `operation`, to that operation, which deletes it once done or
// cancelled; when libpulse made no operation (nullptr) it is deleted here. A server that goes away
// cancels its operations without calling their callbacks, so those must never delete the request
// themselves. Call with libpulse's lock held (in PulseConnection::run), so the operation cannot end
// before it owns the request.
template <class Request>
void keepUntilDone(pa_operation* operation, std::unique_ptr<Request> request) {
  if (operation == nullptr) return;
  pa_operation_set_state_callback(
      operation,
      [](pa_operation* ended, void* data) {
        if (pa_operation_get_state(ended) != PA_OPERATION_RUNNING) {
          delete static_cast<Request*>(data);
        }
      },
      request.release());
  pa_operation_unref(operation);
}

}  // namespace tindra
