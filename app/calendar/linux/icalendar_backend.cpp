#include "calendar/linux/icalendar_backend.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTimeZone>
#include <algorithm>
#include <array>
#include <cstring>

#include "base/json_reader.h"
#include "base/json_writer.h"
#include "base/qt_text.h"
#include "calendar/linux/local_calendar_feed.h"
#include "settings/settings_store.h"

namespace tindra {

namespace {

// Colours for calendars that name none, in the order calendars are listed.
constexpr std::array<CalendarEventInfo::Color, 6> palette{{{0.04, 0.52, 1.0},
                                                           {1.0, 0.62, 0.04},
                                                           {0.19, 0.82, 0.35},
                                                           {0.75, 0.35, 0.95},
                                                           {1.0, 0.27, 0.23},
                                                           {0.39, 0.82, 1.0}}};

QStringList strings(const JSONValue& list, std::string_view name) {
  QStringList result;
  const JSONValue* member = list.find(name);
  if (member == nullptr || member->asArray() == nullptr) return result;
  for (const JSONValue& item : *member->asArray()) {
    if (const std::string* text = item.asString()) result.append(toQString(*text));
  }
  return result;
}

JSONValue::Array array(const QStringList& list) {
  JSONValue::Array result;
  for (const QString& item : list) result.emplace_back(item.toStdString());
  return result;
}

bool isAddress(const QString& location) {
  return location.contains(QLatin1String("://"));
}

// A file or folder path as given, with ~ for the home folder; addresses as they are.
QString normalised(QString location) {
  location = location.trimmed();
  if (location.startsWith(QLatin1String("file://"))) return QUrl(location).toLocalFile();
  if (location.startsWith(QLatin1String("~/"))) {
    location.replace(0, 1, QStandardPaths::writableLocation(QStandardPaths::HomeLocation));
  }
  return isAddress(location) ? location : QFileInfo(location).absoluteFilePath();
}

}  // namespace

ICalendarBackend::Places ICalendarBackend::defaultPlaces() {
  const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  return {SettingsStore::defaultFile().parent_path() / "calendars.json",
          data + QStringLiteral("/tindra/calendars"),
          {data + QStringLiteral("/evolution/calendar/system/calendar.ics"),
           data + QStringLiteral("/evolution/tasks/system/tasks.ics")},
          QDBusConnection::sessionBus()};
}

ICalendarBackend::ICalendarBackend(Places places, RemoteCalendarFeed::Clock now, QObject* parent)
    : CalendarBackend(parent),
      places_(std::move(places)),
      now_(std::move(now)),
      list_(places_.list) {
  options_.timeZone = QTimeZone::systemTimeZoneId().toStdString();
  loadList();
  if (places_.evolution) {
    registry_ = std::make_unique<EdsSourceRegistry>(*places_.evolution);
    connect(registry_.get(), &EdsSourceRegistry::changed, this,
            &ICalendarBackend::onRegistryChanged);
  }
}

ICalendarBackend::~ICalendarBackend() = default;

QString ICalendarBackend::idFor(const QString& location) {
  const QByteArray hash = QCryptographicHash::hash(location.toUtf8(), QCryptographicHash::Sha1);
  return QStringLiteral("ics-") + QString::fromLatin1(hash.toHex().left(12));
}

void ICalendarBackend::start() {
  if (started_) return;
  started_ = true;
  if (registry_) registry_->start();
  makeFeeds();
}

// Evolution's files are what Evolution Data Server serves: read only while it does not answer,
// and not before it has said whether it runs, so that its calendars are not shown twice.
bool ICalendarBackend::readsFound() const {
  return !registry_ || registry_->state() == EdsSourceRegistry::State::missing;
}

void ICalendarBackend::onRegistryChanged() {
  if (!started_) return;
  if (readsFound() != foundRead_) return makeFeeds();
  followEvolution();
  updateCheck();
  emit changed();
}

// A calendar listed as before keeps its feed, open and read; a changed one (renamed, recoloured)
// is opened anew. While the registry is away, the calendars stay as they were.
void ICalendarBackend::followEvolution() {
  if (!registry_ || registry_->state() != EdsSourceRegistry::State::present) return;
  std::vector<std::unique_ptr<EdsCalendarFeed>> feeds;
  for (const EdsCalendar& calendar : registry_->calendars()) {
    const auto kept = std::ranges::find_if(
        evolutionFeeds_, [&](const auto& feed) { return feed && feed->calendar() == calendar; });
    if (kept != evolutionFeeds_.end()) {
      feeds.push_back(std::move(*kept));
      continue;
    }
    auto feed = std::make_unique<EdsCalendarFeed>(
        calendar, optionsFor(feeds_.size() + feeds.size()), *places_.evolution);
    watch(*feed);
    feed->start();
    feeds.push_back(std::move(feed));
  }
  evolutionFeeds_ = std::move(feeds);
}

void ICalendarBackend::watch(CalendarFeed& feed) {
  connect(&feed, &CalendarFeed::changed, this, [this] {
    updateCheck();
    emit changed();
  });
}

void ICalendarBackend::loadList() {
  const auto text = list_.read();
  if (!text) {
    if (text.error() != ENOENT) {
      listProblem_ = Sentence(QT_TR_NOOP("%1 cannot be read: %2"), tr)
                         .arg(QString::fromStdString(places_.list.string()),
                              QString::fromLocal8Bit(std::strerror(text.error())));
    }
    return;
  }
  const auto list = JSONReader::parse(*text);
  if (!list || list->asObject() == nullptr) {
    // Set aside, never written over: the user may want what it held.
    std::filesystem::path aside = places_.list;
    aside += ".unreadable";
    std::error_code error;
    std::filesystem::rename(places_.list, aside, error);
    listProblem_ =
        Sentence(QT_TR_NOOP("the calendar list was not readable and was set aside as %1"), tr)
            .arg(QString::fromStdString(aside.string()));
    return;
  }
  added_ = strings(*list, "calendars");
  takeOwners(strings(*list, "ownerAddresses"));
}

void ICalendarBackend::takeOwners(const QStringList& owners) {
  owners_ = owners;
  options_.ownerAddresses.clear();
  for (const QString& owner : owners_) options_.ownerAddresses.push_back(owner.toStdString());
}

// Evolution's files that exist, then the user's, in the order they are listed.
std::vector<CalendarSource> ICalendarBackend::listed() const {
  std::vector<CalendarSource> sources;
  const auto list = [&](const QString& location, bool removable) {
    CalendarSource source;
    source.id = idFor(location);
    source.name =
        isAddress(location) ? QUrl(location).host() : QFileInfo(location).completeBaseName();
    source.location = location;
    source.removable = removable;
    sources.push_back(std::move(source));
  };
  for (const QString& found : places_.found) {
    if (readsFound() && QFileInfo::exists(found)) list(found, false);
  }
  for (const QString& location : added_) list(location, true);
  return sources;
}

ICalendarReadOptions ICalendarBackend::optionsFor(std::size_t index) const {
  ICalendarReadOptions options = options_;
  options.color = palette[index % palette.size()];
  return options;
}

std::optional<QString> ICalendarBackend::saveList() {
  JSONValue::Object list;
  list["calendars"] = array(added_);
  list["ownerAddresses"] = array(owners_);
  if (const auto saved = list_.write(JSONWriter::writePretty(list)); !saved) {
    return QString::fromStdString(saved.error().message(list_.url()));
  }
  return std::nullopt;
}

void ICalendarBackend::makeFeeds() {
  // The new feeds are made before the old ones go, so the reader they share stays.
  std::vector<std::unique_ptr<CalendarFeed>> feeds;
  for (CalendarSource& source : listed()) {
    feeds.push_back(makeFeed(std::move(source), optionsFor(feeds.size())));
  }
  feeds_ = std::move(feeds);
  foundRead_ = readsFound();
  for (const auto& feed : feeds_) {
    watch(*feed);
    feed->start();
  }
  followEvolution();
  updateCheck();
  emit changed();
}

std::unique_ptr<CalendarFeed> ICalendarBackend::makeFeed(CalendarSource source,
                                                         ICalendarReadOptions options) {
  if (isAddress(source.location)) {
    return std::make_unique<RemoteCalendarFeed>(std::move(source), std::move(options), network_,
                                                places_.kept, now_);
  }
  return std::make_unique<LocalCalendarFeed>(std::move(source), std::move(options));
}

void ICalendarBackend::setWindow(double start, double end) {
  if (options_.windowStart == start && options_.windowEnd == end) return;
  options_.windowStart = start;
  options_.windowEnd = end;
  readOptionsChanged();
}

void ICalendarBackend::setOwnerAddresses(const QStringList& addresses) {
  if (addresses == owners_) return;
  takeOwners(addresses);
  if (const auto problem = saveList()) listProblem_ = Sentence::verbatim(*problem);
  readOptionsChanged();
}

void ICalendarBackend::readOptionsChanged() {
  for (std::size_t i = 0; i < feeds_.size(); ++i) feeds_[i]->setReadOptions(optionsFor(i));
  for (std::size_t i = 0; i < evolutionFeeds_.size(); ++i) {
    evolutionFeeds_[i]->setReadOptions(optionsFor(feeds_.size() + i));
  }
}

std::vector<CalendarContents> ICalendarBackend::calendars() const {
  if (!started_) return listedOnly();
  std::vector<CalendarContents> all;
  all.reserve(feeds_.size() + evolutionFeeds_.size());
  for (const auto& feed : feeds_) all.push_back(feed->contents());
  for (const auto& feed : evolutionFeeds_) all.push_back(feed->contents());
  return all;
}

// Before the start nothing is read: the calendars as listed, without their events.
std::vector<CalendarContents> ICalendarBackend::listedOnly() const {
  std::vector<CalendarContents> all;
  for (CalendarSource& source : listed()) {
    source.state = {DiagnosticsLog::Outcome::degraded,
                    Sentence(QT_TR_NOOP("not read while the calendar is off"), tr)};
    all.push_back({std::move(source), {}, {}});
  }
  return all;
}

std::optional<QString> ICalendarBackend::add(const QString& given) {
  const QString location = normalised(given);
  if (location.isEmpty()) return tr("Give a file, a folder or an address.");
  if (isAddress(location)) {
    if (!RemoteCalendarFeed::fetchedURL(location)) {
      return tr(
          "Use an https:// or webcal:// address: a calendar fetched over plain http can be "
          "read by anyone on the way.");
    }
  } else if (!QFileInfo::exists(location)) {
    return QStringLiteral("%1 does not exist.").arg(location);
  }
  if (added_.contains(location) || places_.found.contains(location)) {
    return tr("This calendar is already in the list.");
  }
  added_.append(location);
  if (const auto problem = saveList()) {
    added_.removeLast();
    return *problem;
  }
  if (started_) {
    makeFeeds();
  } else {
    emit changed();
  }
  return std::nullopt;
}

void ICalendarBackend::remove(const QString& id) {
  const auto removed =
      added_.removeIf([&](const QString& location) { return idFor(location) == id; });
  if (removed == 0) return;
  if (const auto problem = saveList()) listProblem_ = Sentence::verbatim(*problem);
  if (started_) {
    makeFeeds();
  } else {
    emit changed();
  }
}

void ICalendarBackend::updateCheck() {
  ServiceCheck check{DiagnosticsLog::Outcome::ok,
                     Sentence(QT_TR_N_NOOP("reading %n iCalendar calendar(s)"), tr,
                              static_cast<int>(feeds_.size()))};
  if (feeds_.empty() && evolutionFeeds_.empty()) {
    check = {
        DiagnosticsLog::Outcome::degraded,
        Sentence(QT_TR_NOOP("no calendars: add an iCalendar file, folder or address in Settings"),
                 tr)};
  }
  if (registry_) {
    const ServiceCheck evolution = registry_->check();
    check = {std::max(check.outcome, evolution.outcome), check.text.followedBy(evolution.text)};
  }
  if (!listProblem_.isEmpty()) {
    check = {DiagnosticsLog::Outcome::degraded, check.text.followedBy(listProblem_)};
  }
  std::vector<const CalendarFeed*> all;
  for (const auto& feed : feeds_) all.push_back(feed.get());
  for (const auto& feed : evolutionFeeds_) all.push_back(feed.get());
  for (const CalendarFeed* feed : all) {
    const CalendarSource& source = feed->contents().source;
    if (source.state.outcome == DiagnosticsLog::Outcome::ok) continue;
    const Sentence problem =
        Sentence::verbatim(source.name).followedBy(source.state.text, QStringLiteral(": "));
    check = {DiagnosticsLog::Outcome::degraded, check.text.followedBy(problem)};
  }
  setCheck(check.outcome, check.text);
}

}  // namespace tindra
