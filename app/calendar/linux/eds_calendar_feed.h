// EdsCalendarFeed: one calendar or task list of Evolution Data Server, read through its calendar
// factory: opened there, then followed through a live view of the provider's window (a new
// window replaces the view), which sends the calendar's components as they are added, changed
// and removed. The components the view holds, with the calendar's own definitions of the time
// zones they name, are read as one document by the reader every calendar shares, so recurrences
// and moved occurrences are expanded as in any iCalendar file. The view sends changes only: once
// it is complete the calendar is listed in one call, and nothing is read before that, so a large
// calendar is read once at the start, not once per batch.
// When the factory or the calendar's backend leaves, the events last read stay shown and the
// calendar is opened again when the factory is back; a factory that crashed is started again
// through the bus, and a calendar it would not open is asked for again, after a pause that
// doubles while it keeps failing. Every call is asynchronous.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QMap>
#include <QTimer>
#include <algorithm>
#include <atomic>
#include <memory>
#include <utility>

#include "base/dbus/dbus_service_follower.h"
#include "calendar/linux/calendar_feed.h"
#include "calendar/linux/eds_source.h"

namespace tindra {

class EdsCalendarFeed final : public CalendarFeed {
  Q_OBJECT

 public:
  EdsCalendarFeed(const EdsCalendar& calendar, ICalendarReadOptions options, QDBusConnection bus,
                  QObject* parent = nullptr);
  // The view is disposed of and the calendar closed, without waiting for an answer.
  ~EdsCalendarFeed() override;

  void start() override;
  const EdsCalendar& calendar() const { return calendar_; }

  // How the calendar is listed: its id ("eds:<uid>"), its name with its account's.
  static CalendarSource sourceFor(const EdsCalendar& calendar);
  // The view's query: occurrences in [start, end) for events, unfinished to-dos for task lists.
  static QString query(EdsSource::Kind kind, double start, double end);
  // The time zones `component` names in its TZID parameters.
  static QStringList zonesNamed(const QByteArray& component);
  // Seconds before the factory is started again after it left, the first time and at most.
  static constexpr int firstRestart = 1;
  static constexpr int maxRestart = 300;
  // The key of a component ("<UID>" or "<UID>\n<RECURRENCE-ID>"), as the view names it when
  // it is removed; empty when it has no UID.
  static QString keyOf(const QByteArray& component);

 protected:
  void windowChanged() override;
  bool holdsDocuments() const override { return true; }
  // The components of the last reading and the zones, joined into one document on the reader.
  Gather documentsAgain() override;

 private:
  void open();
  void onOpened(const QString& path, const QString& busName);
  void makeView();
  void listAll();
  void closeView();
  void onViewSignal(const QDBusMessage& message);
  // A view's ObjectsAdded, ObjectsModified or ObjectsRemoved.
  void apply(const QDBusMessage& change);
  void addComponents(const QStringList& components);
  void removeComponents(const QStringList& keys);
  void askZones(const QByteArray& component);
  void scheduleRead();
  void read();
  void lost(const Sentence& why);
  void retireBackend();
  void restartFactoryLater();
  void send(const QString& path, const QString& interface, const QString& method) const;
  QDBusMessage calendarCall(const QString& method) const;

  EdsCalendar calendar_;
  QDBusConnection bus_;
  DBusServiceFollower factory_;
  DBusServiceFollower* backend_ = nullptr;  // the process that serves the calendar, once opened
  QString busName_;
  QString calendarPath_;
  QString viewPath_;
  bool opened_ = false;
  // Count openings and views: an answer for an older one is dropped.
  quint64 openings_ = 0;
  quint64 views_ = 0;
  QMap<QString, QByteArray> components_;  // by key
  QList<QDBusMessage> unlisted_;          // the view's changes until the calendar is listed
  // Those of the last reading, read again for new options while a new view fills components_
  // or the backend is away; shared with components_ (implicitly) while the view holds the same.
  QMap<QString, QByteArray> lastRead_;
  QMap<QString, QByteArray> zones_;  // VTIMEZONE by TZID; empty when the calendar has none
  int zonesAsked_ = 0;
  bool complete_ = false;  // the calendar was listed since the view started
  QTimer readSoon_;        // one reading for the signals of one turn of the event loop
  // A pause that doubles each time it is taken, up to a ceiling, until the service works again.
  struct DoublingPause {
    int next = firstRestart * 1000;  // ms
    int take() { return std::exchange(next, std::min(next * 2, maxRestart * 1000)); }
    void reset() { next = firstRestart * 1000; }
  };
  QTimer restart_;  // starts the factory again after it left
  DoublingPause restartPause_;
  QTimer reopen_;  // opens the calendar again after the factory refused to
  DoublingPause reopenPause_;
  std::shared_ptr<std::atomic<quint64>> readings_ = std::make_shared<std::atomic<quint64>>(0);
};

}  // namespace tindra
