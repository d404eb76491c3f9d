// ICalendarBackend: calendars read from iCalendar files, folders of them and subscribed
// addresses. The calendars the user added, and the user's own mail addresses, are kept in
// calendars.json beside the settings (saved through DurableFile; a file that cannot be read is
// set aside, never written over). Evolution's local calendar and tasks are found by themselves
// when they exist. Fetched copies are kept in the data folder.
#pragma once

#include <QNetworkAccessManager>
#include <filesystem>
#include <memory>
#include <vector>

#include "calendar/calendar_backend.h"
#include "calendar/linux/calendar_feed.h"
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
  std::vector<std::unique_ptr<CalendarFeed>> feeds_;
  Sentence listProblem_;
  bool started_ = false;
};

}  // namespace tindra
