#include "calendar/linux/eds_calendar_feed.h"

#include <QDBusObjectPath>
#include <QDateTime>
#include <QRegularExpression>
#include <utility>

#include "base/dbus/dbus_reply.h"

namespace tindra {

namespace {

const QString factoryService = QStringLiteral("org.gnome.evolution.dataserver.Calendar8");
const QString factoryPath = QStringLiteral("/org/gnome/evolution/dataserver/CalendarFactory");
const QString factoryInterface = QStringLiteral("org.gnome.evolution.dataserver.CalendarFactory");
const QString calendarInterface = QStringLiteral("org.gnome.evolution.dataserver.Calendar");
const QString viewInterface = QStringLiteral("org.gnome.evolution.dataserver.CalendarView");
const std::array<QString, 4> viewSignals{
    QStringLiteral("ObjectsAdded"), QStringLiteral("ObjectsModified"),
    QStringLiteral("ObjectsRemoved"), QStringLiteral("Complete")};

// A component's content lines, folded lines joined again.
QByteArrayList contentLines(QByteArray text) {
  text.replace("\r\n", "\n");
  text.replace("\n ", "").replace("\n\t", "");
  return text.split('\n');
}

// The value of the first `name` property ("UID", "RECURRENCE-ID"): what follows the first colon
// outside quotes, after any parameters.
QByteArray propertyValue(const QByteArrayList& lines, QByteArrayView name) {
  for (const QByteArray& line : lines) {
    if (!line.startsWith(name) || line.size() <= name.size()) continue;
    const char next = line[name.size()];
    if (next != ':' && next != ';') continue;
    bool quoted = false;
    for (qsizetype i = name.size(); i < line.size(); ++i) {
      if (line[i] == '"') quoted = !quoted;
      if (line[i] == ':' && !quoted) return line.mid(i + 1).trimmed();
    }
  }
  return {};
}

QString utcStamp(double seconds) {
  return QDateTime::fromSecsSinceEpoch(static_cast<qint64>(seconds), Qt::UTC)
      .toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'"));
}

}  // namespace

EdsCalendarFeed::EdsCalendarFeed(const EdsCalendar& calendar, ICalendarReadOptions options,
                                 QDBusConnection bus, QObject* parent)
    : CalendarFeed(sourceFor(calendar), std::move(options), parent),
      calendar_(calendar),
      bus_(bus),
      factory_(std::move(bus), factoryService, {}, DBusServiceFollower::Activation::start) {
  readSoon_.setSingleShot(true);
  readSoon_.setInterval(0);
  connect(&readSoon_, &QTimer::timeout, this, &EdsCalendarFeed::read);
  connect(&factory_, &DBusServiceFollower::appeared, this, &EdsCalendarFeed::open);
  connect(&factory_, &DBusServiceFollower::missing, this, [this](const QDBusError& error) {
    setProblem(
        DiagnosticsLog::Outcome::degraded,
        Sentence(QT_TR_NOOP("Evolution Data Server's calendar factory does not answer (%1)"), tr)
            .arg(error.name()));
  });
  connect(&factory_, &DBusServiceFollower::vanished, this, [this] {
    lost(Sentence(QT_TR_NOOP("Evolution Data Server's calendar factory went away: the events "
                             "last read are kept until it returns"),
                  tr));
    restartFactoryLater();
  });
  reopen_.setSingleShot(true);
  connect(&reopen_, &QTimer::timeout, this, [this] {
    if (factory_.present()) open();
  });
  restart_.setSingleShot(true);
  connect(&restart_, &QTimer::timeout, this, [this] {
    if (factory_.present()) return;
    // Any call to its name starts it; its appearance is what the follower hears.
    factory_.call(QDBusMessage::createMethodCall(factoryService, factoryPath,
                                                 QStringLiteral("org.freedesktop.DBus.Peer"),
                                                 QStringLiteral("Ping")),
                  [](const QDBusMessage&) {});
  });
}

// Nothing else may ask for it (a desktop without a calendar of its own); a factory that keeps
// crashing is tried less and less often.
void EdsCalendarFeed::restartFactoryLater() {
  if (restart_.isActive()) return;
  restart_.start(restartPause_.take());
}

EdsCalendarFeed::~EdsCalendarFeed() {
  if (backend_ == nullptr) return;
  if (!viewPath_.isEmpty()) send(viewPath_, viewInterface, QStringLiteral("Dispose"));
  if (opened_) send(calendarPath_, calendarInterface, QStringLiteral("Close"));
}

CalendarSource EdsCalendarFeed::sourceFor(const EdsCalendar& calendar) {
  CalendarSource source;
  source.id = QStringLiteral("eds:") + calendar.uid;
  source.name =
      calendar.account.isEmpty()
          ? calendar.name
          : tr("%1 (%2)", "a calendar and its account").arg(calendar.name, calendar.account);
  source.location = tr("Evolution Data Server, source %1").arg(calendar.uid);
  source.color = calendar.color;
  return source;
}

QString EdsCalendarFeed::query(EdsSource::Kind kind, double start, double end) {
  if (kind == EdsSource::Kind::tasks) return QStringLiteral("(not (is-completed?))");
  return QStringLiteral(R"((occur-in-time-range? (make-time "%1") (make-time "%2")))")
      .arg(utcStamp(start), utcStamp(end));
}

QStringList EdsCalendarFeed::zonesNamed(const QByteArray& component) {
  static const QRegularExpression tzid(QStringLiteral(R"re(;TZID=(?:"([^"]*)"|([^;:"]*)))re"));
  QStringList zones;
  for (const QByteArray& line : contentLines(component)) {
    if (!line.contains(";TZID=")) continue;
    const QRegularExpressionMatch match = tzid.match(QString::fromUtf8(line));
    if (!match.hasMatch()) continue;
    const QString zone = match.hasCaptured(1) ? match.captured(1) : match.captured(2);
    if (!zone.isEmpty() && !zones.contains(zone)) zones.append(zone);
  }
  return zones;
}

QString EdsCalendarFeed::keyOf(const QByteArray& component) {
  const QByteArrayList lines = contentLines(component);
  const QByteArray uid = propertyValue(lines, "UID");
  if (uid.isEmpty()) return {};
  const QByteArray rid = propertyValue(lines, "RECURRENCE-ID");
  return rid.isEmpty() ? QString::fromUtf8(uid)
                       : QString::fromUtf8(uid) + u'\n' + QString::fromUtf8(rid);
}

void EdsCalendarFeed::start() {
  factory_.start();
}

void EdsCalendarFeed::open() {
  reopen_.stop();
  retireBackend();
  const quint64 opening = ++openings_;
  QDBusMessage call = QDBusMessage::createMethodCall(factoryService, factoryPath, factoryInterface,
                                                     calendar_.kind == EdsSource::Kind::tasks
                                                         ? QStringLiteral("OpenTaskList")
                                                         : QStringLiteral("OpenCalendar"));
  call << calendar_.uid;
  factory_.call(call, [this, opening](const QDBusMessage& answer) {
    if (opening != openings_) return;
    const auto path = dbus::argument<QString>(answer, 0);
    const auto busName = dbus::argument<QString>(answer, 1);
    if (!path || !busName) {
      setProblem(DiagnosticsLog::Outcome::degraded,
                 Sentence(QT_TR_NOOP("Evolution Data Server cannot open the calendar: %1"), tr)
                     .arg(Sentence::verbatim(answer.errorMessage())));
      // The factory hears of a new source from the registry a moment after Tindra may, more
      // so while it reconnects to a registry that restarted; it is asked again, less and less
      // often.
      reopen_.start(reopenPause_.take());
      return;
    }
    reopenPause_.reset();
    onOpened(*path, *busName);
  });
}

// The calendar may be served by the factory itself or by a process of its own; either way it is
// followed by its name, so that its going is noticed.
void EdsCalendarFeed::onOpened(const QString& path, const QString& busName) {
  busName_ = busName;
  calendarPath_ = path;
  backend_ =
      new DBusServiceFollower(bus_, busName, {}, DBusServiceFollower::Activation::none, this);
  connect(backend_, &DBusServiceFollower::signalReceived, this, &EdsCalendarFeed::onViewSignal);
  connect(backend_, &DBusServiceFollower::appeared, this, [this, opening = openings_] {
    if (opening != openings_) return;
    backend_->call(calendarCall(QStringLiteral("Open")),
                   [this, opening](const QDBusMessage& answer) {
                     if (opening != openings_) return;
                     if (answer.type() == QDBusMessage::ErrorMessage) {
                       setProblem(DiagnosticsLog::Outcome::degraded,
                                  Sentence(QT_TR_NOOP("Evolution Data Server cannot open the "
                                                      "calendar: %1"),
                                           tr)
                                      .arg(Sentence::verbatim(answer.errorMessage())));
                       return;
                     }
                     opened_ = true;
                     makeView();
                   });
  });
  const auto gone = [this] {
    lost(Sentence(QT_TR_NOOP("the calendar's backend went away: the events last read are kept "
                             "until it is open again"),
                  tr));
    // A calendar the factory serves itself goes with it, and this may be heard before the
    // factory's own going: opening it again now would start a crashed factory at once, past
    // restartFactoryLater's pause. The factory's return opens it then.
    if (factory_.present() && busName_ != factoryService) open();
  };
  connect(backend_, &DBusServiceFollower::vanished, this, gone);
  connect(backend_, &DBusServiceFollower::missing, this, gone);
  backend_->start();
}

void EdsCalendarFeed::windowChanged() {
  if (opened_) makeView();
}

// The components come again from the new view; until it has sent them all, the last reading
// stays shown, read for the new window.
void EdsCalendarFeed::makeView() {
  closeView();
  const quint64 view = ++views_;
  QDBusMessage call = calendarCall(QStringLiteral("GetView"));
  call << query(calendar_.kind, readOptions().windowStart, readOptions().windowEnd);
  backend_->call(call, [this, view](const QDBusMessage& answer) {
    if (view != views_) return;
    const auto path = dbus::argument<QDBusObjectPath>(answer);
    if (!path) {
      setProblem(DiagnosticsLog::Outcome::degraded,
                 Sentence(QT_TR_NOOP("Evolution Data Server gives no view of the calendar: %1"), tr)
                     .arg(Sentence::verbatim(answer.errorMessage())));
      return;
    }
    viewPath_ = path->path();
    // Followed before it starts, so that none of its first signals is missed.
    for (const QString& member : viewSignals) {
      backend_->followSignal(viewPath_, viewInterface, member);
    }
    // Without its first components: while a view sends those, Evolution Data Server holds
    // back any change for up to two seconds (and more, its timer counting whole seconds), even
    // after Complete, so an event added just after a start or a new window showed that late.
    // The calendar is listed once the view is complete instead (listAll).
    QDBusMessage flags = QDBusMessage::createMethodCall(busName_, viewPath_, viewInterface,
                                                        QStringLiteral("SetFlags"));
    flags << 0u;
    backend_->call(flags, [this, view](const QDBusMessage&) {
      if (view != views_) return;
      const QDBusMessage startView = QDBusMessage::createMethodCall(
          busName_, viewPath_, viewInterface, QStringLiteral("Start"));
      backend_->call(startView, [this, view](const QDBusMessage& started) {
        if (view != views_ || started.type() != QDBusMessage::ErrorMessage) return;
        setProblem(DiagnosticsLog::Outcome::degraded,
                   Sentence(QT_TR_NOOP("Evolution Data Server's view of the calendar does not "
                                       "start: %1"),
                            tr)
                       .arg(Sentence::verbatim(started.errorMessage())));
      });
    });
  });
}

// The list replaces what the view told before its answer, which is told again over it: a change
// the list was taken too early for is not lost, and one it holds is only applied twice.
void EdsCalendarFeed::listAll() {
  QDBusMessage call = calendarCall(QStringLiteral("GetObjectList"));
  call << query(calendar_.kind, readOptions().windowStart, readOptions().windowEnd);
  backend_->call(call, [this, view = views_](const QDBusMessage& answer) {
    if (view != views_) return;
    const auto components = dbus::argument<QStringList>(answer);
    if (!components) {
      setProblem(DiagnosticsLog::Outcome::degraded,
                 Sentence(QT_TR_NOOP("Evolution Data Server could not list the calendar: %1"), tr)
                     .arg(Sentence::verbatim(answer.errorMessage())));
      return;
    }
    components_.clear();
    addComponents(*components);
    for (const QDBusMessage& change : std::exchange(unlisted_, {})) apply(change);
    complete_ = true;
    scheduleRead();
  });
}

void EdsCalendarFeed::closeView() {
  ++views_;
  complete_ = false;
  components_.clear();
  unlisted_.clear();
  if (viewPath_.isEmpty() || backend_ == nullptr) return;
  for (const QString& member : viewSignals) {
    backend_->unfollowSignal(viewPath_, viewInterface, member);
  }
  send(viewPath_, viewInterface, QStringLiteral("Dispose"));
  viewPath_.clear();
}

void EdsCalendarFeed::onViewSignal(const QDBusMessage& message) {
  if (message.path() != viewPath_ || message.interface() != viewInterface) return;
  if (message.member() != QLatin1String("Complete")) {
    if (!complete_) unlisted_.append(message);
    apply(message);
  } else {
    restartPause_.reset();  // it works again
    const QString error = dbus::argument<QString>(message, 1).value_or(QString());
    if (!dbus::argument<QString>(message).value_or(QString()).isEmpty()) {
      setProblem(DiagnosticsLog::Outcome::degraded,
                 Sentence(QT_TR_NOOP("Evolution Data Server could not list the calendar: %1"), tr)
                     .arg(Sentence::verbatim(error)));
    }
    if (!complete_) listAll();
  }
  scheduleRead();
}

void EdsCalendarFeed::apply(const QDBusMessage& change) {
  const QStringList texts = dbus::argument<QStringList>(change).value_or(QStringList());
  if (change.member() == QLatin1String("ObjectsRemoved")) {
    removeComponents(texts);
  } else {
    addComponents(texts);  // added or modified
  }
}

void EdsCalendarFeed::addComponents(const QStringList& components) {
  for (const QString& text : components) {
    const QByteArray component = text.toUtf8();
    const QString key = keyOf(component);
    if (key.isEmpty()) continue;
    askZones(component);
    components_.insert(key, component);
  }
}

// A key without a RECURRENCE-ID removes the whole series: its moved occurrences go with it.
void EdsCalendarFeed::removeComponents(const QStringList& keys) {
  for (const QString& key : keys) {
    components_.remove(key);
    if (key.contains(u'\n')) continue;
    const QString occurrences = key + u'\n';
    auto entry = components_.lowerBound(occurrences);
    while (entry != components_.end() && entry.key().startsWith(occurrences)) {
      entry = components_.erase(entry);
    }
  }
}

void EdsCalendarFeed::askZones(const QByteArray& component) {
  for (const QString& zone : zonesNamed(component)) {
    if (zones_.contains(zone)) continue;
    zones_.insert(zone, QByteArray());  // asked; the system's database serves until it answers
    ++zonesAsked_;
    QDBusMessage call = calendarCall(QStringLiteral("GetTimezone"));
    call << zone;
    backend_->call(call, [this, zone, opening = openings_](const QDBusMessage& answer) {
      if (opening != openings_) return;
      if (const auto definition = dbus::argument<QString>(answer)) {
        zones_.insert(zone, definition->toUtf8());
      }
      if (--zonesAsked_ == 0) scheduleRead();
    });
  }
}

void EdsCalendarFeed::scheduleRead() {
  if (complete_ && zonesAsked_ == 0) readSoon_.start();
}

// The components and zones are copied (implicitly shared) and joined on the reader; a reading
// overtaken by a newer one before it began is not made at all.
void EdsCalendarFeed::read() {
  if (!complete_ || zonesAsked_ > 0) return;
  lastRead_ = components_;
  accept(documentsAgain());
}

CalendarFeed::Gather EdsCalendarFeed::documentsAgain() {
  const quint64 number = ++*readings_;
  return [components = lastRead_, zones = zones_, readings = readings_,
          number]() -> std::optional<std::vector<std::string>> {
    if (readings->load() != number) return std::nullopt;
    std::string document("BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Tindra//EDS//EN\r\n");
    const auto append = [&document](const QByteArray& part) {
      if (part.isEmpty()) return;
      document.append(part.constData(), static_cast<std::size_t>(part.size()));
      if (!part.endsWith('\n')) document.append("\r\n");
    };
    for (const QByteArray& zone : zones) append(zone);
    for (const QByteArray& component : components) append(component);
    document.append("END:VCALENDAR\r\n");
    return std::vector<std::string>{std::move(document)};
  };
}

void EdsCalendarFeed::lost(const Sentence& why) {
  retireBackend();
  setProblem(DiagnosticsLog::Outcome::degraded, why);
}

// The follower of a backend that left, or of one about to be opened again; it may be the one
// telling of its own end, so it is deleted later.
void EdsCalendarFeed::retireBackend() {
  ++openings_;
  closeView();
  opened_ = false;
  zonesAsked_ = 0;
  zones_.removeIf([](auto zone) { return zone.value().isEmpty(); });  // asked again when open
  calendarPath_.clear();
  if (backend_ == nullptr) return;
  backend_->disconnect(this);
  backend_->deleteLater();
  backend_ = nullptr;
}

QDBusMessage EdsCalendarFeed::calendarCall(const QString& method) const {
  return QDBusMessage::createMethodCall(busName_, calendarPath_, calendarInterface, method);
}

// Fire and forget, for a view or calendar Tindra no longer reads.
void EdsCalendarFeed::send(const QString& path, const QString& interface,
                           const QString& method) const {
  QDBusMessage message = QDBusMessage::createMethodCall(busName_, path, interface, method);
  message.setAutoStartService(false);
  bus_.send(message);
}

}  // namespace tindra
