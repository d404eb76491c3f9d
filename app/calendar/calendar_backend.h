// CalendarBackend: the user's calendars and what they hold, the events expanded for the window
// of time the provider asks for and the to-dos. A backend reports each change when it happens
// (a file saved, a feed fetched), never by polling the calendars, and says how each calendar
// answers.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

#include "base/backend.h"
#include "base/shared_backends.h"
#include "calendar/calendar_event_info.h"
#include "calendar/reminder_item.h"

namespace tindra {

struct CalendarSource {
  QString id;        // stable; the calendar's entry in calendarExcludedIdentifiers
  QString name;      // as the calendar calls itself, else from where it comes
  QString location;  // a path or an address, for the settings
  std::optional<CalendarEventInfo::Color> color;
  ServiceCheck state;      // how reading it went, in a sentence
  bool removable = false;  // added by the user, not found by Tindra
  friend bool operator==(const CalendarSource&, const CalendarSource&) = default;
};

struct CalendarContents {
  CalendarSource source;
  std::vector<CalendarEventInfo> events;  // ids begin with the calendar's id and a colon
  std::vector<ReminderItem> reminders;
};

class CalendarBackend : public Backend {
  Q_OBJECT

 public:
  using Backend::Backend;
  class Null;

  // This platform's calendars: the real backend, or the do-nothing one where none can be read
  // (made in the platform's folder).
  static std::unique_ptr<CalendarBackend> forPlatform(SharedBackends& shared);

  // The events wanted: those overlapping [start, end), seconds since 1970.
  virtual void setWindow(double start, double end) = 0;
  virtual std::vector<CalendarContents> calendars() const = 0;

  // Adds a calendar from a file, a folder of files or an address; the reason when it cannot.
  virtual std::optional<QString> add(const QString& location) = 0;
  virtual void remove(const QString& id) = 0;
  // The user's own mail addresses, which tell which invitations the user declined.
  virtual QStringList ownerAddresses() const = 0;
  virtual void setOwnerAddresses(const QStringList& addresses) = 0;

 signals:
  void changed();
};

// Where no calendar can be read: none is listed, and none can be added.
class CalendarBackend::Null final : public NullBackend<CalendarBackend> {
 public:
  using NullBackend::NullBackend;

  void setWindow(double, double) override {}
  std::vector<CalendarContents> calendars() const override { return {}; }
  std::optional<QString> add(const QString&) override { return check().text.translated(); }
  void remove(const QString&) override {}
  QStringList ownerAddresses() const override { return {}; }
  void setOwnerAddresses(const QStringList&) override {}
};

}  // namespace tindra
