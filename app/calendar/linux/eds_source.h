// EdsSource: one source of Evolution Data Server's registry (an account, a calendar, a task
// list, an address book...), read from the key-file text the registry publishes as its Data:
// the [Data Source] group names it, says whether it is on and which source it belongs to; a
// [Calendar] or [Task List] group makes it a calendar, with its colour. Names are taken in the
// user's language when the source is translated (the built-in "Personal" calendar is).
// EdsCalendar: an enabled calendar or task list as Tindra lists it.
#pragma once

#include <QString>
#include <QStringList>
#include <map>
#include <optional>
#include <vector>

#include "calendar/calendar_event_info.h"

namespace tindra {

struct EdsSource {
  enum class Kind { other, events, tasks };

  QString uid;
  QString name;
  QString parent;  // the account's source, or a built-in one ("local-stub"); empty at the top
  bool enabled = true;
  Kind kind = Kind::other;
  std::optional<CalendarEventInfo::Color> color;
  // An account that says its calendars are off (an online account with calendars unticked).
  bool calendarsOff = false;

  // `data` as the registry sends it; `languages` the user's, most wanted first ("nb_NO", "nb").
  static EdsSource parse(const QString& uid, const QString& data, const QStringList& languages);
  // The user's languages as key files name them, from the system locale.
  static QStringList userLanguages();

  friend bool operator==(const EdsSource&, const EdsSource&) = default;
};

struct EdsCalendar {
  QString uid;
  QString name;     // the calendar's own name
  QString account;  // its account's name; empty when it has none
  EdsSource::Kind kind = EdsSource::Kind::events;
  std::optional<CalendarEventInfo::Color> color;

  // The enabled calendars and task lists among `sources` (by uid): a source is on only when it
  // and every source above it are, and no account above it has switched its calendars off.
  static std::vector<EdsCalendar> among(const std::map<QString, EdsSource>& sources);

  friend bool operator==(const EdsCalendar&, const EdsCalendar&) = default;
};

}  // namespace tindra
