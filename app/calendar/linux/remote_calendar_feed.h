// RemoteCalendarFeed: a calendar subscribed by its address (https://, or webcal:// which means
// the same over https). Fetched with conditional requests (ETag and Last-Modified), every half
// hour or as often as the publisher asks within a quarter of an hour and a day, and again sooner
// after a failure, backing off. The last good copy and its validators are kept on disk, so a
// restart shows the calendar at once without a request, and a failed fetch, an error page or a
// broken document never empties it.
#pragma once

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>
#include <QTimer>
#include <QUrl>
#include <functional>

#include "calendar/linux/calendar_feed.h"
#include "settings/durable_file.h"

namespace tindra {

class RemoteCalendarFeed final : public CalendarFeed {
  Q_OBJECT

 public:
  using Clock = std::function<double()>;  // seconds since 1970
  static constexpr double defaultRefresh = 1800;
  static constexpr double minRefresh = 900;
  static constexpr double maxRefresh = 86400;
  static constexpr double firstRetry = 60;

  // The copy is kept in `keptFolder` as <id>.ics, its validators as <id>.json.
  RemoteCalendarFeed(CalendarSource source, ICalendarReadOptions options,
                     QNetworkAccessManager& network, const QString& keptFolder, Clock now,
                     QObject* parent = nullptr);
  // A fetch under way is dropped.
  ~RemoteCalendarFeed() override;

  void start() override;
  // Fetches now, whatever the schedule.
  void fetch();
  // The address to fetch: webcal becomes https; none for anything else than https, or http on
  // this machine's own loopback.
  static std::optional<QUrl> fetchedURL(const QString& location);
  // Seconds until the next fetch is planned; negative when none is.
  double secondsToNextFetch() const;

 private:
  void loadKept();
  void onFinished(QNetworkReply* reply);
  void failed(const Sentence& reason);
  void retryLater();
  void keep(const QByteArray& body, const QByteArray& etag, const QByteArray& lastModified);
  void saveValidators() const;
  void schedule(double seconds);
  double refreshEvery() const;

  QNetworkAccessManager& network_;
  DurableFile keptBody_;
  DurableFile keptValidators_;
  Clock now_;
  QUrl url_;
  QByteArray etag_;
  QByteArray lastModified_;
  double fetchedAt_ = 0;  // of the last answer, 200 or 304
  int failures_ = 0;
  bool tooLarge_ = false;
  QTimer next_;
  QPointer<QNetworkReply> reply_;
};

}  // namespace tindra
