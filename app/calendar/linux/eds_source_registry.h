// EdsSourceRegistry: the calendars and task lists Evolution Data Server knows (its own, and those
// of GNOME Online Accounts: Google, Microsoft 365, Nextcloud, CalDAV), followed in its source
// registry on the session bus: sources added and removed (the registry's object manager), and
// switched on or off or renamed (their Data changing). The registry is started if it is not
// running. When it leaves, the calendars last known stay listed: it is usually back within a
// second, and the calendar factory that serves the events need not have gone with it.
// Main thread only.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <map>
#include <vector>

#include "base/assign_if_changed.h"
#include "base/dbus/dbus_service_follower.h"
#include "base/service_check.h"
#include "calendar/linux/eds_source.h"

namespace tindra {

class EdsSourceRegistry final : public QObject {
  Q_OBJECT

 public:
  enum class State {
    asking,   // not known yet whether the registry is there
    present,  // listing its calendars
    missing,  // not on the bus, and could not be started
    away,     // was there, and left
  };

  explicit EdsSourceRegistry(QDBusConnection bus, QObject* parent = nullptr);

  void start();
  State state() const { return state_; }
  const std::vector<EdsCalendar>& calendars() const { return calendars_; }
  // For the diagnostics: how many calendars each account gave, or why there are none.
  ServiceCheck check() const;

 signals:
  // The calendars or the state changed.
  void changed();

 private:
  void read();
  void onSignal(const QDBusMessage& message);
  void take(const QString& path, const QVariantMap& properties);
  bool update();  // whether the calendars changed
  void setState(State state);

  QDBusConnection bus_;
  DBusServiceFollower registry_;
  QStringList languages_;
  std::map<QString, QString> uids_;       // object path -> uid
  std::map<QString, EdsSource> sources_;  // uid -> source
  std::vector<EdsCalendar> calendars_;
  State state_ = State::asking;
  QString error_;  // why the registry is missing
};

}  // namespace tindra
