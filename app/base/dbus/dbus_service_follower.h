// DBusServiceFollower: one service on one bus, followed for a backend. It watches the service's
// name; whenever the service is there (at start, or back after a restart under a new unique
// name) it reads the properties it was asked for, one GetAll per object and interface, and then
// passes on their PropertiesChanged, reading again where a property is only said to be invalid.
// It also passes on the other signals its owner follows, from the service's current owner only.
// Every call is asynchronous, and an answer to a call made before the service left or came back
// is dropped, so nothing stale reaches the owner. Main thread only.
#pragma once

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusServiceWatcher>
#include <QVariantMap>
#include <functional>
#include <vector>

namespace tindra {

class DBusServiceFollower final : public QObject {
  Q_OBJECT

 public:
  // One object's interface whose properties are read and followed.
  struct Properties {
    QString path;
    QString interface;
  };
  // Whether start() asks the bus to start a service that is not running (D-Bus activation), as
  // any call to the service would.
  enum class Activation { none, start };

  DBusServiceFollower(QDBusConnection bus, QString service, std::vector<Properties> properties = {},
                      Activation activation = Activation::none, QObject* parent = nullptr);

  // Begins following: appeared or missing follow. Once only; later calls do nothing.
  void start();
  // Whether start() has learnt if the service is there.
  bool settled() const { return state_ == State::present || state_ == State::absent; }
  // The service's unique name while it is there, else empty.
  const QString& owner() const { return owner_; }
  bool present() const { return state_ == State::present; }

  // Sends `message` and hands its answer to `handle`, unless the service left or came back in the
  // meantime, or the answer only says that it left (vanished says so).
  void call(const QDBusMessage& message, std::function<void(const QDBusMessage&)> handle);
  // Passes on the service's `member` signals of `interface` at `path` (any path when empty) in
  // signalReceived.
  void followSignal(const QString& path, const QString& interface, const QString& member);
  void unfollowSignal(const QString& path, const QString& interface, const QString& member);

 signals:
  // The service is there; its properties are being read.
  void appeared();
  // The service was not there at start (and could not be started): `error` says why.
  void missing(const QDBusError& error);
  // The service left the bus.
  void vanished();
  // All properties of one followed interface, after each appearance and each invalidation.
  void read(const QVariantMap& properties, const QString& interface, const QString& path);
  // The service answered a read with an error: it lacks the object or interface, or refuses.
  void readFailed(const QDBusError& error, const QString& interface, const QString& path);
  // Properties as PropertiesChanged sent them, once their interface has been read.
  void changed(const QVariantMap& properties, const QString& interface, const QString& path);
  // A followed signal.
  void signalReceived(const QDBusMessage& message);

 private slots:
  void onSignal(const QDBusMessage& message);

 private:
  enum class State { idle, asking, present, absent };
  struct Followed {
    Properties properties;
    bool answered = false;
    // Changes that arrived while a read was on its way. Qt may hand over a read's answer after
    // PropertiesChanged the service sent later, so these go over the answer rather than being
    // dropped; one that only says a value is invalid calls for another read.
    QVariantMap meanwhile;
    bool invalidatedMeanwhile = false;
  };

  void askOwner(bool mayStart);
  void onOwnerChanged(const QString& oldOwner, const QString& newOwner);
  void leave();
  void readAll(std::size_t index);
  // Whether `message` told of properties this follower follows (and was handled).
  bool tookProperties(const QDBusMessage& message);
  // Sends `message`; `handle` gets the answer if no owner came or went meanwhile.
  void ask(const QDBusMessage& message, std::function<void(const QDBusMessage&)> handle);

  QDBusConnection bus_;
  QString service_;
  Activation activation_;
  std::vector<Followed> followed_;
  QDBusServiceWatcher watcher_;
  State state_ = State::idle;
  QString owner_;
  quint64 generation_ = 0;  // counts comings and goings, to know an answer from before them
};

}  // namespace tindra
