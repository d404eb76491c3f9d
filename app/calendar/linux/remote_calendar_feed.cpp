#include "calendar/linux/remote_calendar_feed.h"

#include <QDir>
#include <QHostAddress>
#include <QNetworkRequest>
#include <algorithm>
#include <cmath>

#include "base/json_reader.h"
#include "base/json_writer.h"
#include "base/qt_text.h"

namespace tindra {

namespace {

std::filesystem::path keptFile(const QString& folder, const QString& id, const char* suffix) {
  return QDir(folder).filePath(id + QLatin1String(suffix)).toStdString();
}

QByteArray member(const JSONValue& validators, std::string_view name) {
  const JSONValue* value = validators.find(name);
  const std::string* text = value ? value->asString() : nullptr;
  return text ? QByteArray::fromStdString(*text) : QByteArray();
}

}  // namespace

RemoteCalendarFeed::RemoteCalendarFeed(CalendarSource source, ICalendarReadOptions options,
                                       QNetworkAccessManager& network, const QString& keptFolder,
                                       Clock now, QObject* parent)
    : CalendarFeed(std::move(source), std::move(options), parent),
      network_(network),
      keptBody_(keptFile(keptFolder, contents().source.id, ".ics")),
      keptValidators_(keptFile(keptFolder, contents().source.id, ".json")),
      now_(std::move(now)),
      url_(fetchedURL(location()).value_or(QUrl())) {
  next_.setSingleShot(true);
  connect(&next_, &QTimer::timeout, this, &RemoteCalendarFeed::fetch);
}

RemoteCalendarFeed::~RemoteCalendarFeed() {
  if (!reply_) return;
  reply_->disconnect(this);
  reply_->abort();
  reply_->deleteLater();
}

std::optional<QUrl> RemoteCalendarFeed::fetchedURL(const QString& location) {
  QUrl url(location.trimmed());
  const QString scheme = url.scheme().toLower();
  if (scheme == QLatin1String("webcal") || scheme == QLatin1String("webcals")) {
    url.setScheme(QStringLiteral("https"));
  }
  if (!url.isValid() || url.host().isEmpty()) return std::nullopt;
  if (url.scheme() == QLatin1String("https")) return url;
  if (url.scheme() == QLatin1String("http") && QHostAddress(url.host()).isLoopback()) return url;
  return std::nullopt;
}

void RemoteCalendarFeed::start() {
  loadKept();
}

// The kept copy first, so that a conditional request is only made for a copy that reads.
void RemoteCalendarFeed::loadKept() {
  if (const auto validators = keptValidators_.read()) {
    if (const auto value = JSONReader::parse(*validators)) {
      etag_ = member(*value, "etag");
      lastModified_ = member(*value, "lastModified");
      const JSONValue* at = value->find("fetchedAt");
      fetchedAt_ = at && at->asNumber() ? *at->asNumber() : 0;
    }
  }
  const auto kept = [file = keptBody_]() -> std::optional<std::vector<std::string>> {
    auto body = file.read();
    if (!body) return std::nullopt;
    return std::vector{std::move(*body)};
  };
  accept(kept, [this](Outcome outcome) {
    if (outcome != Outcome::taken) {
      // Without a good copy the validators would make the server answer "not modified".
      etag_.clear();
      lastModified_.clear();
      fetchedAt_ = 0;
    }
    const double age = now_() - fetchedAt_;
    if (fetchedAt_ > 0 && age >= 0 && age < refreshEvery()) {
      schedule(refreshEvery() - age);
    } else {
      fetch();
    }
  });
}

void RemoteCalendarFeed::fetch() {
  next_.stop();
  if (reply_) return;
  if (url_.isEmpty()) {
    setProblem(DiagnosticsLog::Outcome::failed,
               Sentence(QT_TR_NOOP("%1 is not an https address"), tr).arg(location()));
    return;
  }
  QNetworkRequest request(url_);
  request.setHeader(QNetworkRequest::UserAgentHeader,
                    QStringLiteral("Tindra/%1").arg(QStringLiteral(TINDRA_VERSION)));
  request.setRawHeader("Accept", "text/calendar, */*;q=0.5");
  if (!etag_.isEmpty()) request.setRawHeader("If-None-Match", etag_);
  if (!lastModified_.isEmpty()) request.setRawHeader("If-Modified-Since", lastModified_);
  request.setTransferTimeout(30000);
  tooLarge_ = false;
  reply_ = network_.get(request);
  QNetworkReply* reply = reply_;
  connect(reply, &QNetworkReply::downloadProgress, this, [this, reply](qint64 received, qint64) {
    if (received > static_cast<qint64>(ICalendarReader::maxDocumentBytes)) {
      tooLarge_ = true;
      reply->abort();
    }
  });
  connect(reply, &QNetworkReply::finished, this, [this, reply] { onFinished(reply); });
}

void RemoteCalendarFeed::onFinished(QNetworkReply* reply) {
  reply->deleteLater();
  const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  if (tooLarge_) return failed(Sentence::verbatim(toQString(describe(ICalendarError::tooLarge))));
  if (status == 304) {
    fetchedAt_ = now_();
    failures_ = 0;
    saveValidators();
    setProblem(DiagnosticsLog::Outcome::ok, Sentence());  // nothing new, and no problem
    schedule(refreshEvery());
    return;
  }
  if (reply->error() != QNetworkReply::NoError || status != 200) {
    return failed(status > 0 ? Sentence(QT_TR_NOOP("HTTP %1"), tr).arg(status)
                             : Sentence::verbatim(reply->errorString()));
  }
  const QByteArray body = reply->readAll();
  accept([body] { return std::optional(std::vector{body.toStdString()}); },
         [this, body, etag = reply->rawHeader("ETag"),
          lastModified = reply->rawHeader("Last-Modified")](Outcome outcome) {
           if (outcome != Outcome::taken) return retryLater();
           keep(body, etag, lastModified);
           failures_ = 0;
           schedule(refreshEvery());
         });
}

void RemoteCalendarFeed::failed(const Sentence& reason) {
  setProblem(DiagnosticsLog::Outcome::degraded,
             Sentence(QT_TR_NOOP("could not fetch %1 (%2)"), tr).arg(url_.host()).arg(reason));
  retryLater();
}

// After 1, 2, 4… minutes, never later than the next regular fetch.
void RemoteCalendarFeed::retryLater() {
  ++failures_;
  schedule(std::min(refreshEvery(), firstRetry * std::pow(2.0, std::min(failures_, 16) - 1)));
}

void RemoteCalendarFeed::keep(const QByteArray& body, const QByteArray& etag,
                              const QByteArray& lastModified) {
  etag_ = etag;
  lastModified_ = lastModified;
  fetchedAt_ = now_();
  if (const auto saved = keptBody_.write(body.toStdString()); !saved) {
    qWarning("calendar: %s", saved.error().message(keptBody_.url()).c_str());
    return;
  }
  saveValidators();
}

void RemoteCalendarFeed::saveValidators() const {
  JSONValue::Object validators;
  validators["etag"] = etag_.toStdString();
  validators["lastModified"] = lastModified_.toStdString();
  validators["fetchedAt"] = fetchedAt_;
  if (const auto saved = keptValidators_.write(JSONWriter::write(validators)); !saved) {
    qWarning("calendar: %s", saved.error().message(keptValidators_.url()).c_str());
  }
}

double RemoteCalendarFeed::refreshEvery() const {
  return std::clamp(refreshInterval().value_or(defaultRefresh), minRefresh, maxRefresh);
}

void RemoteCalendarFeed::schedule(double seconds) {
  next_.start(static_cast<int>(std::clamp(seconds, 1.0, maxRefresh) * 1000));
}

double RemoteCalendarFeed::secondsToNextFetch() const {
  return next_.isActive() ? next_.remainingTime() / 1000.0 : -1;
}

}  // namespace tindra
