#include "views/idle_clock.h"

#include <QCoreApplication>
#include <QLocale>

namespace tindra {

IdleClock::IdleClock(Now now, QObject* parent) : QObject(parent), now_(std::move(now)) {
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, &IdleClock::update);
  update();
}

void IdleClock::hold() {
  if (++holders_ == 1) update();
}

void IdleClock::release() {
  if (holders_ == 0) return;
  if (--holders_ == 0) timer_.stop();
}

int IdleClock::pendingWakeMilliseconds() const {
  return timer_.isActive() ? timer_.interval() : -1;
}

void IdleClock::update() {
  const QDateTime now = now_();
  const QLocale locale;
  // Hours and minutes only; some locales' short format (C's among them) has seconds.
  QString timeFormat = locale.timeFormat(QLocale::ShortFormat);
  timeFormat.remove(QStringLiteral(":ss"));
  const QString time = locale.toString(now.time(), timeFormat);
  // The date's shape is the language's own ("Donnerstag, 26. November", "jueves, 26 de
  // noviembre"), so its format is a text the translations give.
  const QString date = locale.toString(
      now.date(), QCoreApplication::translate("tindra::IdleClock", "dddd d MMMM",
                                              "the opened notch's date: Qt date format"));
  if (time != timeText_ || date != dateText_) {
    timeText_ = time;
    dateText_ = date;
    emit changed();
  }
  if (holders_ == 0) return;
  // A little after the minute, so the wake-up never lands just before it.
  const int msIntoMinute = now.time().second() * 1000 + now.time().msec();
  timer_.start(60'000 - msIntoMinute + 50);
}

}  // namespace tindra
