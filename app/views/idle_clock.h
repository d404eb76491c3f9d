// IdleClock: the time and date of the idle layout. It runs only while some notch is open and
// then wakes once a minute, at the minute, never in between.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QDateTime>
#include <QObject>
#include <QTimer>
#include <functional>

namespace tindra {

class IdleClock : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("part of NotchContent")
  Q_PROPERTY(QString timeText READ timeText NOTIFY changed)
  Q_PROPERTY(QString dateText READ dateText NOTIFY changed)

 public:
  using Now = std::function<QDateTime()>;

  explicit IdleClock(Now now = &QDateTime::currentDateTime, QObject* parent = nullptr);

  QString timeText() const { return timeText_; }
  QString dateText() const { return dateText_; }
  // Counted: the clock runs while at least one holder wants it.
  void hold();
  void release();
  bool isRunning() const { return holders_ > 0; }
  // Milliseconds until the pending wake-up, or -1.
  int pendingWakeMilliseconds() const;

 signals:
  void changed();

 private:
  void update();

  Now now_;
  int holders_ = 0;
  QTimer timer_;
  QString timeText_;
  QString dateText_;
};

}  // namespace tindra
