// ICalendarBackend: calendars read from iCalendar files, folders of them and subscribed
// addresses. The calendars the user added, and the user's own mail addresses, are kept in
// calendars.json beside the settings (saved through DurableFile; a file that cannot be read is
// set aside, never written over). The calendars of Evolution Data Server (Evolution's own and
// the online accounts') are read through it when it runs; where it does not, Evolution's local
// calendar and tasks files are read when they exist. Fetched copies are kept in the data folder.
#pragma once

#include <QDBusConnection>
#include <QNetworkAccessManager>
#include <filesystem>
#include <memory>
#include <vector>

#include "calendar/calendar_backend.h"
#include "calendar/linux/calendar_feed.h"
#include "calendar/linux/eds_calendar_feed.h"
#include "calendar/linux/eds_source_registry.h"
#include "calendar/linux/remote_calendar_feed.h"
#include "settings/durable_file.h"

namespace tindra {

class ICalendarBackend final : public CalendarBackend {
  Q_OBJECT

 public:
  struct Places {
    std::filesystem::path list;  // calendars.json
    QString kept;                // the folder of fetched copies
    QStringList found;           // calendars found on the machine, read when they exist
    // The bus where Evolution Data Server is asked for calendars; none to read files only. When
    // it answers, `found` is not read: its calendars are among those it serves.
    std::optional<QDBusConnection> evolution;
  };
  // Where Tindra keeps and finds calendars for this user.
  static Places defaultPlaces();

  ICalendarBackend(Places places, RemoteCalendarFeed::Clock now, QObject* parent = nullptr);
  ~ICalendarBackend() override;

  void start() override;
  void setWindow(double start, double end) override;
  std::vector<CalendarContents> calendars() const override;
  std::optional<QString> add(const QString& location) override;
  void remove(const QString& id) override;
  QStringList ownerAddresses() const override { return owners_; }
  void setOwnerAddresses(const QStringList& addresses) override;

  // The id of the calendar read from `location`.
  static QString idFor(const QString& location);

 private:
  void loadList();
  void takeOwners(const QStringList& owners);
  std::vector<CalendarSource> listed() const;
  std::vector<CalendarContents> listedOnly() const;
  ICalendarReadOptions optionsFor(std::size_t index) const;
  std::optional<QString> saveList();
  void makeFeeds();
  bool readsFound() const;
  void onRegistryChanged();
  void followEvolution();
  void watch(CalendarFeed& feed);
  std::unique_ptr<CalendarFeed> makeFeed(CalendarSource source, ICalendarReadOptions options);
  void readOptionsChanged();
  void updateCheck();

  Places places_;
  RemoteCalendarFeed::Clock now_;
  DurableFile list_;
  QStringList added_;
  QStringList owners_;
  QNetworkAccessManager network_;
  ICalendarReadOptions options_;
  std::vector<std::unique_ptr<CalendarFeed>> feeds_;  // files and addresses
  std::unique_ptr<EdsSourceRegistry> registry_;
  std::vector<std::unique_ptr<EdsCalendarFeed>> evolutionFeeds_;
  bool foundRead_ = false;  // whether `feeds_` has the found calendars
  Sentence listProblem_;
  bool started_ = false;
};

}  // namespace tindra
