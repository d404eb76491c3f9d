#include "weather/weather_provider.h"
#include <QNetworkInformation>
#include "base/backend_selection.h"
#include "base/qt_http_transport.h"
#include "base/wall_clock.h"
#include "weather/fake_weather.h"

#include <unicode/timezone.h>

#include <QDateTime>
#include <QFile>
#include <QLocale>
#include <QPointer>
#include <QScopeGuard>
#include <QStandardPaths>
#include <QTimeZone>
#include <algorithm>
#include <cmath>

#include "base/diagnostics_log.h"
#include "base/json_reader.h"
#include "base/json_writer.h"
#include "base/logging_categories.h"
#include "base/qt_text.h"
#include "calendar/calendar_texts.h"
#include "settings/settings_keys.h"
#include "weather/precipitation_summary.h"
#include "weather/sun_times.h"
#include "weather/weather_refresh_policy.h"

namespace tindra {

namespace {

// Checked again at least this often, so a clock set forward or a resume from sleep is caught.
constexpr double longestWait = 3600;

QString conditionText(WeatherCondition condition) {
  switch (condition) {
    case WeatherCondition::clear:
      return QObject::tr("Clear");
    case WeatherCondition::fair:
      return QObject::tr("Fair");
    case WeatherCondition::partlyCloudy:
      return QObject::tr("Partly cloudy");
    case WeatherCondition::cloudy:
      return QObject::tr("Cloudy");
    case WeatherCondition::fog:
      return QObject::tr("Fog");
    case WeatherCondition::lightRain:
      return QObject::tr("Light rain");
    case WeatherCondition::rain:
      return QObject::tr("Rain");
    case WeatherCondition::heavyRain:
      return QObject::tr("Heavy rain");
    case WeatherCondition::rainShowers:
      return QObject::tr("Rain showers");
    case WeatherCondition::thunderstorm:
      return QObject::tr("Thunderstorm");
    case WeatherCondition::sleet:
      return QObject::tr("Sleet");
    case WeatherCondition::snow:
      return QObject::tr("Snow");
    case WeatherCondition::unknown:
      return {};
  }
  return {};
}

QString precipitationText(const PrecipitationSummary& summary) {
  return std::visit(
      [](const auto& value) -> QString {
        using T = std::decay_t<decltype(value)>;
        if constexpr (std::is_same_v<T, PrecipitationSummary::Chance>) {
          return QObject::tr("%1 % chance of precipitation").arg(value.percent);
        } else if constexpr (std::is_same_v<T, PrecipitationSummary::Amount>) {
          return QObject::tr("%1 mm in the next %2 h")
              .arg(QLocale().toString(value.millimetres, 'f', 1))
              .arg(value.hours);
        } else if constexpr (std::is_same_v<T, PrecipitationSummary::None>) {
          return QObject::tr("No precipitation in the next %1 h").arg(value.hours);
        } else {
          return QString();
        }
      },
      summary.value);
}

bool usesFahrenheit(TemperatureUnit unit) {
  if (unit != TemperatureUnit::automatic) return unit == TemperatureUnit::fahrenheit;
  return QLocale().measurementSystem() == QLocale::ImperialUSSystem;
}

QString temperatureText(double celsius, TemperatureUnit unit) {
  const bool fahrenheit = usesFahrenheit(unit);
  const double shown = fahrenheit ? celsius * 9 / 5 + 32 : celsius;
  // No "-0": a reading just below zero rounds to plain 0.
  const long rounded = std::lround(shown) == 0 ? 0 : std::lround(shown);
  return QStringLiteral("%1 °%2").arg(rounded).arg(fahrenheit ? 'F' : 'C');
}

std::optional<SunTimes::Moment> nextSun(const GeoCoordinate& place, double now) {
  const std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::createDefault());
  const auto today = SolarCalculator::day(now, place, *zone);
  if (!today) return std::nullopt;
  return SunTimes{*today, SolarCalculator::day(now + 86400, place, *zone)}.next(now);
}

QString sunText(const SunTimes::Moment& moment) {
  const QLocale locale;
  if (const auto* sunrise = std::get_if<SunTimes::Sunrise>(&moment)) {
    return QObject::tr("Sunrise %1").arg(CalendarTexts::clockTime(sunrise->date, locale));
  }
  if (const auto* sunset = std::get_if<SunTimes::Sunset>(&moment)) {
    return QObject::tr("Sunset %1").arg(CalendarTexts::clockTime(sunset->date, locale));
  }
  if (std::holds_alternative<SunTimes::MidnightSun>(moment)) return QObject::tr("Midnight sun");
  return QObject::tr("Polar night");
}

// Sees each new forecast on its way to the client and reads its temperatures, which the
// snapshot does not keep.
class CourseReader final : public HTTPTransport {
 public:
  using Read = std::function<void(TemperatureCourse)>;
  CourseReader(std::shared_ptr<HTTPTransport> inner, Read read)
      : inner_(std::move(inner)), read_(std::move(read)) {}
  void send(const HTTPRequest& request, Completion completion) override {
    inner_->send(request, [read = read_, completion = std::move(completion)](
                              std::expected<HTTPResponse, HTTPTransportError> answer) {
      if (answer && answer->status == 200) {
        if (const auto document = METForecastParser::decode(answer->body)) {
          read(TemperatureCourse::of(*document));
        }
      }
      completion(std::move(answer));
    });
  }

 private:
  std::shared_ptr<HTTPTransport> inner_;
  Read read_;
};

// Today in the local calendar, as seconds since 1970.
std::pair<double, double> localDay(double now) {
  const QDate date = QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(now * 1000)).date();
  return {static_cast<double>(date.startOfDay().toSecsSinceEpoch()),
          static_cast<double>(date.addDays(1).startOfDay().toSecsSinceEpoch())};
}

std::string fileText(const std::string& path) {
  QFile file(QString::fromStdString(path));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return file.read(1024 * 1024).toStdString();
}

}  // namespace

WeatherProvider::Places WeatherProvider::defaultPlaces() {
  const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  return {std::filesystem::path(data.toStdString()) / "tindra" / "weather-snapshot.json",
          SettingsStore::defaultFile().parent_path() / "weather.json",
          {"/usr/share/zoneinfo/zone.tab", "/usr/share/zoneinfo/zone1970.tab"},
          QTimeZone::systemTimeZoneId().toStdString()};
}

WeatherProvider::WeatherProvider(ProviderContext context,
                                 std::unique_ptr<LocationSource> locationService,
                                 std::shared_ptr<HTTPTransport> transport, Places places, Clock now,
                                 std::unique_ptr<OneShotScheduler> scheduler, QObject* parent)
    : Provider(context, id, parent),
      locationService_(std::move(locationService)),
      places_(std::move(places)),
      now_(std::move(now)),
      kept_(places_.snapshot),
      preferencesFile_(places_.preferences),
      nextChange_([this] { update(); }, std::move(scheduler)) {
  QPointer<WeatherProvider> self(this);
  client_.transport =
      std::make_shared<CourseReader>(std::move(transport), [self](TemperatureCourse course) {
        if (self) self->arriving_ = std::move(course);
      });
  connect(locationService_.get(), &LocationSource::locationChanged, this, &WeatherProvider::update);
  connect(locationService_.get(), &LocationSource::checkChanged, this,
          &WeatherProvider::recordCheck);
}

WeatherProvider::~WeatherProvider() = default;

void WeatherProvider::start() {
  started_ = true;
  if (const auto text = preferencesFile_.read()) {
    preferences_ = WeatherPreferences::decoded(*text);
  }
  observation_ =
      settings().observe(settings::weatherEnabled, [this](const bool&) { enabledChanged(); });
  enabledChanged();
}

void WeatherProvider::enabledChanged() {
  if (settings().read(settings::weatherEnabled) && !serviceStarted_) {
    serviceStarted_ = true;
    loadKept();
    zones_ = cities();
    locationService_->start();
  }
  recordCheck();
  update();
}

void WeatherProvider::recordCheck() {
  ServiceCheck check{DiagnosticsLog::Outcome::ok,
                     Sentence(QT_TR_NOOP("the weather is off in Settings"), tr)};
  if (settings().read(settings::weatherEnabled)) {
    const std::optional<Position> where = position();
    check = locationService_->check();
    check.text = Sentence(QT_TR_NOOP("position: %1; %2"), tr)
                     .arg(where ? where->source : Sentence(QT_TR_NOOP("none yet"), tr))
                     .arg(check.text);
    if (lastFailure_) {
      check.outcome = DiagnosticsLog::Outcome::degraded;
      check.text = check.text.followedBy(Sentence(QT_TR_NOOP("; the last request failed (%1)"), tr)
                                             .arg(toQString(tindra::name(lastFailure_->kind))),
                                         QString());
    }
  }
  diagnostics().record(lcWeather(), name(), check.outcome, check.text);
}

std::optional<WeatherProvider::Position> WeatherProvider::position() const {
  if (preferences_.location) {
    return Position{*preferences_.location, preferences_.locationName.empty()
                                                ? Sentence(QT_TR_NOOP("set in Settings"), tr)
                                                : Sentence(QT_TR_NOOP("%1, set in Settings"), tr)
                                                      .arg(toQString(preferences_.locationName))};
  }
  if (const auto located = locationService_->location()) {
    return Position{*located, Sentence(QT_TR_NOOP("GeoClue"), tr)};
  }
  if (const auto city = zones_.city(places_.timeZone)) {
    return Position{*city, inTimeZone()};
  }
  // An older name of the zone ("Asia/Calcutta") is listed under its current one, one of the
  // names ICU knows as the same zone.
  const icu::UnicodeString zone = icu::UnicodeString::fromUTF8(places_.timeZone);
  for (int32_t i = 0; i < icu::TimeZone::countEquivalentIDs(zone); ++i) {
    std::string other;
    icu::TimeZone::getEquivalentID(zone, i).toUTF8String(other);
    if (const auto city = zones_.city(other)) {
      return Position{*city, inTimeZone()};
    }
  }
  return std::nullopt;
}

ZoneTable WeatherProvider::cities() const {
  std::string all;
  for (const std::string& table : places_.zoneTables) all += fileText(table) + "\n";
  return ZoneTable::parse(all);
}

QString WeatherProvider::positionSource() const {
  const auto where = position();
  return where ? where->source.translated() : tr("none yet");
}

Sentence WeatherProvider::inTimeZone() const {
  return Sentence(QT_TR_NOOP("the time zone %1"), tr).arg(toQString(places_.timeZone));
}

std::optional<QString> WeatherProvider::setPreferences(WeatherPreferences preferences) {
  if (const auto saved = preferencesFile_.write(preferences.encoded()); !saved) {
    return toQString(saved.error().message(preferencesFile_.url()));
  }
  preferences_ = std::move(preferences);
  recordCheck();
  update();
  return std::nullopt;
}

void WeatherProvider::setOnline(bool online) {
  if (online == online_) return;
  online_ = online;
  qCInfo(lcWeather) << "network" << (online ? "back" : "down");
  update();
}

void WeatherProvider::loadKept() {
  const auto text = kept_.read();
  if (!text) return;
  const auto value = JSONReader::parse(*text);
  if (!value) return;
  if (const JSONValue* snapshot = value->find("snapshot")) {
    snapshot_ = weatherSnapshotFromJSON(*snapshot);
  }
  if (const JSONValue* course = value->find("course"))
    course_ = TemperatureCourse::fromJSON(*course);
  const JSONValue* attempt = value->find("lastAttempt");
  if (attempt != nullptr && attempt->asNumber() != nullptr) lastAttempt_ = *attempt->asNumber();
}

void WeatherProvider::saveKept() const {
  JSONValue::Object kept;
  if (snapshot_) kept["snapshot"] = toJSON(*snapshot_);
  if (lastAttempt_) kept["lastAttempt"] = *lastAttempt_;
  kept["course"] = course_.toJSON();
  if (const auto saved = kept_.write(JSONWriter::write(kept)); !saved) {
    qCWarning(lcWeather).noquote() << toQString(saved.error().message(kept_.url()));
  }
}

void WeatherProvider::update() {
  if (!started_) return;
  const double now = now_();
  if (!settings().read(settings::weatherEnabled)) {
    viewModel_.setState({});
    nextChange_.cancel();
    return;
  }
  const std::optional<Position> where = position();
  if (where && online_ && !fetching_ &&
      WeatherRefreshPolicy::shouldRefresh(snapshot_, lastAttempt_, now, where->coordinate.latitude,
                                          where->coordinate.longitude)) {
    fetch(where->coordinate);
    // Answered at once (a transport that does not wait): the update that came with the answer
    // drew it, with a clock read after it; drawing again with `now` would see a snapshot from
    // the future, and no snapshot from the future is fresh.
    if (!fetching_) return;
  }
  // The sun's next rise or set: shown, and a moment to look again.
  const std::optional<SunTimes::Moment> sun =
      snapshot_ ? nextSun(snapshot_->coordinate, now) : std::nullopt;
  viewModel_.setState(state(now, sun));
  aim(now, sun);
}

void WeatherProvider::fetch(const GeoCoordinate& coordinate) {
  fetching_ = true;
  lastAttempt_ = now_();
  saveKept();
  client_.userAgent = METWeatherClient::makeUserAgent(
      TINDRA_VERSION, TINDRA_WEB_ADDRESS,
      preferences_.contact.empty() ? TINDRA_SUPPORT_EMAIL : preferences_.contact);
  QPointer<WeatherProvider> self(this);
  client_.fetch(coordinate.latitude, coordinate.longitude, snapshot_,
                [self](WeatherFetchResult result) {
                  if (self) self->received(result);
                });
}

void WeatherProvider::received(const WeatherFetchResult& result) {
  fetching_ = false;
  const auto takeArriving = qScopeGuard([this] { arriving_.reset(); });
  if (const auto* updated = std::get_if<WeatherFetchResult::Updated>(&result.value)) {
    snapshot_ = updated->snapshot;
    course_ = arriving_.value_or(TemperatureCourse{});
    lastFailure_.reset();
  } else if (const auto* kept = std::get_if<WeatherFetchResult::NotModified>(&result.value)) {
    snapshot_ = kept->snapshot;
    lastFailure_.reset();
  } else {
    lastFailure_ = std::get<WeatherFetchResult::Failed>(result.value).failure;
    qCInfo(lcWeather).noquote() << "forecast request failed:"
                                << toQString(tindra::name(lastFailure_->kind));
  }
  saveKept();
  recordCheck();
  update();
}

WeatherViewModel::State WeatherProvider::state(double now,
                                               const std::optional<SunTimes::Moment>& sun) const {
  WeatherViewModel::State state;
  state.enabled = true;
  const std::optional<Position> where = position();
  state.place = where ? where->source.translated() : QString();
  if (!snapshot_ || !WeatherRefreshPolicy::isFresh(*snapshot_, now)) {
    state.unavailable =
        where ? tr("The weather is unavailable right now.") : tr("Waiting for location access");
    return state;
  }
  state.available = true;
  state.temperature = temperatureText(snapshot_->temperature, preferences_.unit);
  state.condition = conditionText(snapshot_->condition);
  state.symbol = toQString(symbolName(snapshot_->condition, snapshot_->isNight));
  state.precipitation = precipitationText(PrecipitationSummary::of(*snapshot_));
  const auto [dayStart, dayEnd] = localDay(now);
  if (const auto range = course_.range(dayStart, dayEnd)) {
    state.highLow = tr("High %1 · Low %2")
                        .arg(temperatureText(range->high, preferences_.unit),
                             temperatureText(range->low, preferences_.unit));
  }
  if (sun) state.sun = sunText(*sun);
  return state;
}

void WeatherProvider::aim(double now, const std::optional<SunTimes::Moment>& sun) {
  nextChange_.aim(now, now + longestWait, [&](const auto& consider) {
    if (snapshot_) {
      consider(WeatherRefreshPolicy::nextRefresh(*snapshot_));
      consider(snapshot_->fetchedAt + WeatherRefreshPolicy::freshness + 1);
    }
    if (sun) {
      if (const auto* rise = std::get_if<SunTimes::Sunrise>(&*sun)) consider(rise->date + 1);
      if (const auto* set = std::get_if<SunTimes::Sunset>(&*sun)) consider(set->date + 1);
    }
    // After a failure, or before any answer, the next try is as soon as the spacing allows.
    if (lastAttempt_ && (lastFailure_ || !snapshot_)) {
      consider(*lastAttempt_ + WeatherRefreshPolicy::attemptSpacing);
    }
  });
}

namespace {

// No forecast request while the network is down, and one soon after it returns. Without a way
// to know, the network counts as up and a failed request waits its ten minutes.
void followNetwork(WeatherProvider& weather) {
  if (!QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability)) {
    return;
  }
  QNetworkInformation* network = QNetworkInformation::instance();
  const auto follow = [&weather](QNetworkInformation::Reachability reachability) {
    weather.setOnline(reachability != QNetworkInformation::Reachability::Disconnected);
  };
  follow(network->reachability());
  QObject::connect(network, &QNetworkInformation::reachabilityChanged, &weather, follow);
}

}  // namespace

std::unique_ptr<WeatherProvider> WeatherProvider::make(ProviderContext& context) {
  SharedBackends& shared = *context.shared;
  const auto network =
      shared.get<QNetworkAccessManager>([] { return std::make_shared<QNetworkAccessManager>(); });
  auto weather = std::make_unique<WeatherProvider>(
      context,
      chooseBackend(
          id, shared, [] { return std::make_unique<FakeLocationSource>(); },
          [&] { return LocationSource::forPlatform(shared); }),
      fakeBackendRequested(id) ? std::shared_ptr<HTTPTransport>(
                                     std::make_shared<FakeForecastTransport>(secondsSince1970))
                               : std::make_shared<QtHTTPTransport>(*network, secondsSince1970),
      defaultPlaces(), secondsSince1970);
  followNetwork(*weather);
  return weather;
}

ProviderViews WeatherProvider::views() {
  return {.sections = {{.name = QStringLiteral("weather"),
                        .title = QT_TRANSLATE_NOOP("PinnedSectionsEditor", "Weather"),
                        .rank = 40,
                        .file = QStringLiteral("weather/WeatherPanel.qml")}},
          .idle = {{.rank = 20, .file = QStringLiteral("weather/WeatherIdleItem.qml")}}};
}

}  // namespace tindra
