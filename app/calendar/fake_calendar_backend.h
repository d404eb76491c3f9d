// FakeCalendarBackend: invented calendars for the demo, screenshots and tests, chosen only when
// TINDRA_FAKE names "calendar". Its check says that nothing shown is real.
#pragma once

#include "calendar/calendar_backend.h"

namespace tindra {

class FakeCalendarBackend final : public CalendarBackend {
  Q_OBJECT

 public:
  // A day around `now` (seconds since 1970): a design review with a Zoom link eight minutes
  // away, a lunch with a place, a birthday, a breakfast that is over, a declined sync, and two
  // to-dos.
  explicit FakeCalendarBackend(double now, QObject* parent = nullptr);

  void start() override {}
  void setWindow(double, double) override {}
  std::vector<CalendarContents> calendars() const override { return calendars_; }
  std::optional<QString> add(const QString&) override {
    return tr("The invented calendars take no additions.");
  }
  void remove(const QString&) override {}
  QStringList ownerAddresses() const override { return owners_; }
  void setOwnerAddresses(const QStringList& addresses) override { owners_ = addresses; }

  void setCalendars(std::vector<CalendarContents> calendars) {
    calendars_ = std::move(calendars);
    emit changed();
  }

 private:
  std::vector<CalendarContents> calendars_;
  QStringList owners_;
};

}  // namespace tindra
