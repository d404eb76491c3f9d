// CalendarViewModel: what the calendar views show: the featured event (title, the ear text
// beside the notch, the countdown, its Join button), today's agenda, the to-dos and the
// departure advice. Titles are already hidden when the privacy mode is on. The provider sets
// whole states; views are told only when something they show differs.
#pragma once

#include <QColor>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <functional>

namespace tindra {

class CalendarViewModel : public QObject {
  Q_OBJECT
  Q_PROPERTY(bool enabled READ enabled NOTIFY changed)
  Q_PROPERTY(bool hasContent READ hasContent NOTIFY changed)
  Q_PROPERTY(bool featured READ featured NOTIFY changed)
  Q_PROPERTY(QString featuredID READ featuredID NOTIFY changed)
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(QColor color READ color NOTIFY changed)
  Q_PROPERTY(QString earText READ earText NOTIFY changed)
  Q_PROPERTY(QString countdown READ countdown NOTIFY changed)
  Q_PROPERTY(QString timeRange READ timeRange NOTIFY changed)
  Q_PROPERTY(bool started READ started NOTIFY changed)
  // The meeting service's name when the featured event has a link; empty otherwise.
  Q_PROPERTY(QString joinService READ joinService NOTIFY changed)
  Q_PROPERTY(QString departure READ departure NOTIFY changed)
  // Each entry: id, title, time, status ("ended", "now", "upcoming"), color, joinService.
  Q_PROPERTY(QVariantList agenda READ agenda NOTIFY changed)
  // Each entry: title, due, done, color. Empty unless reminders are on.
  Q_PROPERTY(QVariantList reminders READ reminders NOTIFY changed)

 public:
  struct State {
    bool enabled = false;
    bool featured = false;
    QString featuredID;
    QString title;
    QColor color;
    QString earText;
    QString countdown;
    QString timeRange;
    bool started = false;
    QString joinService;
    QString departure;
    QVariantList agenda;
    QVariantList reminders;
    friend bool operator==(const State&, const State&) = default;
  };
  // Opens the meeting link of the event with this id; false when it has none or it cannot open.
  using Join = std::function<bool(const QString& id)>;

  explicit CalendarViewModel(Join join, QObject* parent = nullptr)
      : QObject(parent), join_(std::move(join)) {}

  bool enabled() const { return state_.enabled; }
  bool hasContent() const {
    return state_.enabled &&
           (state_.featured || !state_.agenda.isEmpty() || !state_.reminders.isEmpty());
  }
  bool featured() const { return state_.featured; }
  QString featuredID() const { return state_.featuredID; }
  QString title() const { return state_.title; }
  QColor color() const { return state_.color; }
  QString earText() const { return state_.earText; }
  QString countdown() const { return state_.countdown; }
  QString timeRange() const { return state_.timeRange; }
  bool started() const { return state_.started; }
  QString joinService() const { return state_.joinService; }
  QString departure() const { return state_.departure; }
  QVariantList agenda() const { return state_.agenda; }
  QVariantList reminders() const { return state_.reminders; }
  const State& state() const { return state_; }

  void setState(State state) {
    if (state == state_) return;
    state_ = std::move(state);
    emit changed();
  }

  Q_INVOKABLE bool join(const QString& id) { return join_ && join_(id); }

 signals:
  void changed();

 private:
  Join join_;
  State state_;
};

}  // namespace tindra
