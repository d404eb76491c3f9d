#include "base/dbus/dbus_service_follower.h"

#include "base/dbus/dbus_names.h"
#include "base/dbus/dbus_reply.h"

namespace tindra {

namespace {

const QString propertiesChanged = QStringLiteral("PropertiesChanged");

QDBusMessage busCall(const QString& method, const QVariantList& arguments) {
  QDBusMessage call =
      QDBusMessage::createMethodCall(dbus::busService, dbus::busPath, dbus::busService, method);
  call.setArguments(arguments);
  return call;
}

// Errors that only say the service is gone: the bus had no one to deliver the call to, or the
// service left before it answered. The name watch tells of the departure itself.
bool saysServiceLeft(const QDBusMessage& answer) {
  const QString name = answer.errorName();
  return name == QLatin1String("org.freedesktop.DBus.Error.ServiceUnknown") ||
         name == QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner") ||
         (name == QLatin1String("org.freedesktop.DBus.Error.NoReply") &&
          answer.service() == dbus::busService);
}

}  // namespace

DBusServiceFollower::DBusServiceFollower(QDBusConnection bus, QString service,
                                         std::vector<Properties> properties, Activation activation,
                                         QObject* parent)
    : QObject(parent), bus_(std::move(bus)), service_(std::move(service)), activation_(activation) {
  for (Properties& each : properties) followed_.emplace_back().properties = std::move(each);
  connect(&watcher_, &QDBusServiceWatcher::serviceOwnerChanged, this,
          [this](const QString&, const QString& oldOwner, const QString& newOwner) {
            onOwnerChanged(oldOwner, newOwner);
          });
}

void DBusServiceFollower::start() {
  if (state_ != State::idle) return;
  state_ = State::asking;
  // Watched before it is asked for, so that no change of owner falls between the two.
  watcher_.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
  watcher_.setConnection(bus_);
  watcher_.addWatchedService(service_);
  for (const Followed& followed : followed_) {
    followSignal(followed.properties.path, dbus::properties, propertiesChanged);
  }
  askOwner(activation_ == Activation::start);
}

void DBusServiceFollower::askOwner(bool mayStart) {
  ask(busCall(QStringLiteral("GetNameOwner"), {service_}),
      [this, mayStart](const QDBusMessage& answer) {
        if (answer.type() == QDBusMessage::ReplyMessage) {
          onOwnerChanged({}, dbus::argument<QString>(answer).value_or(QString()));
        } else if (mayStart) {
          ask(busCall(QStringLiteral("StartServiceByName"), {service_, 0u}),
              [this](const QDBusMessage& started) {
                if (started.type() == QDBusMessage::ReplyMessage) {
                  askOwner(false);  // its name has an owner now, unless it left again at once
                } else {
                  state_ = State::absent;
                  emit missing(QDBusError(started));
                }
              });
        } else {
          state_ = State::absent;
          emit missing(QDBusError(answer));
        }
      });
}

void DBusServiceFollower::onOwnerChanged(const QString& oldOwner, const QString& newOwner) {
  // Gone while it was followed, or while start() still asked.
  if (!oldOwner.isEmpty() && state_ != State::absent) leave();
  if (newOwner.isEmpty() || (state_ == State::present && newOwner == owner_)) return;
  ++generation_;
  owner_ = newOwner;
  state_ = State::present;
  emit appeared();
  for (std::size_t index = 0; index < followed_.size(); ++index) readAll(index);
}

void DBusServiceFollower::leave() {
  ++generation_;
  owner_.clear();
  state_ = State::absent;
  emit vanished();
}

void DBusServiceFollower::readAll(std::size_t index) {
  Followed& followed = followed_[index];
  followed.answered = false;
  followed.meanwhile.clear();
  followed.invalidatedMeanwhile = false;
  // To the unique name: only this instance of the service may answer.
  QDBusMessage getAll = QDBusMessage::createMethodCall(owner_, followed.properties.path,
                                                       dbus::properties, QStringLiteral("GetAll"));
  getAll << followed.properties.interface;
  call(getAll, [this, index](const QDBusMessage& answer) {
    Followed& answered = followed_[index];
    answered.answered = true;
    const Properties& properties = answered.properties;
    std::optional<QVariantMap> values = dbus::argument<QVariantMap>(answer);
    if (values) {
      values->insert(std::exchange(answered.meanwhile, {}));
      emit read(*values, properties.interface, properties.path);
      if (std::exchange(answered.invalidatedMeanwhile, false)) readAll(index);
    } else {
      emit readFailed(answer.type() == QDBusMessage::ErrorMessage
                          ? QDBusError(answer)
                          : QDBusError(QDBusError::InvalidSignature, answer.signature()),
                      properties.interface, properties.path);
    }
  });
}

void DBusServiceFollower::call(const QDBusMessage& message,
                               std::function<void(const QDBusMessage&)> handle) {
  ask(message, [handle = std::move(handle)](const QDBusMessage& answer) {
    if (!saysServiceLeft(answer)) handle(answer);
  });
}

void DBusServiceFollower::ask(const QDBusMessage& message,
                              std::function<void(const QDBusMessage&)> handle) {
  whenAnswered(
      bus_.asyncCall(message), this,
      [this, generation = generation_, handle = std::move(handle)](const QDBusMessage& answer) {
        if (generation == generation_) handle(answer);
      });
}

// No sender in the match: for a well-known name Qt would look its owner up with a blocking call.
// The owner is checked in onSignal instead.
void DBusServiceFollower::followSignal(const QString& path, const QString& interface,
                                       const QString& member) {
  bus_.connect(QString(), path, interface, member, this, SLOT(onSignal(QDBusMessage)));
}

void DBusServiceFollower::unfollowSignal(const QString& path, const QString& interface,
                                         const QString& member) {
  bus_.disconnect(QString(), path, interface, member, this, SLOT(onSignal(QDBusMessage)));
}

void DBusServiceFollower::onSignal(const QDBusMessage& message) {
  if (state_ != State::present || message.service() != owner_) return;
  if (!tookProperties(message)) emit signalReceived(message);
}

bool DBusServiceFollower::tookProperties(const QDBusMessage& message) {
  if (message.member() != propertiesChanged || message.interface() != dbus::properties) {
    return false;
  }
  const QString interface = dbus::argument<QString>(message).value_or(QString());
  for (std::size_t index = 0; index < followed_.size(); ++index) {
    Followed& followed = followed_[index];
    if (followed.properties.path != message.path() || followed.properties.interface != interface) {
      continue;
    }
    const QVariantMap values = dbus::argument<QVariantMap>(message, 1).value_or(QVariantMap());
    // A value that changed without being sent is read.
    const bool invalidated =
        !dbus::argument<QStringList>(message, 2).value_or(QStringList()).isEmpty();
    if (!followed.answered) {
      followed.meanwhile.insert(values);
      followed.invalidatedMeanwhile |= invalidated;
    } else if (invalidated) {
      readAll(index);
    } else {
      emit changed(values, interface, message.path());
    }
    return true;
  }
  return false;
}

}  // namespace tindra
