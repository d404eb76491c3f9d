// FakeNotificationSource: invented notifications for the demo and tests, chosen only when
// TINDRA_FAKE names "banners". Nothing is read from the desktop; `send` and `close` play a sender
// and the server.
#pragma once

#include "banners/notification_source.h"

namespace tindra {

class FakeNotificationSource final : public NotificationSource {
 public:
  using NotificationSource::NotificationSource;

  void start() override { running_ = true; }
  void stop() override { running_ = false; }
  ServiceCheck check() const override {
    return {DiagnosticsLog::Outcome::ok, QStringLiteral("invented notifications (TINDRA_FAKE)")};
  }
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
