// FakeNotificationSource: invented notifications for the demo and tests, chosen only when
// TINDRA_FAKE names "banners". Nothing is read from the desktop; `send` and `close` play a sender
// and the server.
#pragma once

#include "banners/notification_source.h"

namespace tindra {

class FakeNotificationSource final : public NotificationSource {
  Q_OBJECT

 public:
  explicit FakeNotificationSource(QObject* parent = nullptr) : NotificationSource(parent) {
    setCheck(DiagnosticsLog::Outcome::ok,
             Sentence(QT_TR_NOOP("invented notifications (TINDRA_FAKE)"), tr));
  }

  void start() override { running_ = true; }
  void stop() override { running_ = false; }
  bool running() const { return running_; }

  // Delivered only while running, as the real source would.
  void send(const DesktopNotification& notification) {
    if (running_) emit notified(notification);
  }
  void close(quint32 id) {
    if (running_) emit closed(id);
  }

 private:
  bool running_ = false;
};

}  // namespace tindra
