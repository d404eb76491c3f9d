// WeatherViewModel: what the weather views show, every text ready: the temperature in the user's
// unit, the condition and its symbol by day or night, the precipitation outlook, the coming
// sunrise or sunset, where the position comes from, and, while nothing fit to show exists, why.
#pragma once

#include <QObject>
#include <QString>

namespace tindra {

class WeatherViewModel : public QObject {
  Q_OBJECT
  Q_PROPERTY(bool enabled READ enabled NOTIFY changed)
  Q_PROPERTY(bool available READ available NOTIFY changed)
  Q_PROPERTY(bool hasContent READ enabled NOTIFY changed)
  Q_PROPERTY(QString temperature READ temperature NOTIFY changed)
  Q_PROPERTY(QString condition READ condition NOTIFY changed)
  // The symbol's name ("cloud.sun.fill", "moon.stars.fill", ...), drawn by WeatherSymbol.
  Q_PROPERTY(QString symbol READ symbol NOTIFY changed)
  Q_PROPERTY(QString precipitation READ precipitation NOTIFY changed)
  // "High 19 °C · Low 9 °C" for today; empty when the forecast does not cover it.
  Q_PROPERTY(QString highLow READ highLow NOTIFY changed)
  Q_PROPERTY(QString sun READ sun NOTIFY changed)
  Q_PROPERTY(QString place READ place NOTIFY changed)
  // Shown instead of the weather while `available` is false.
  Q_PROPERTY(QString unavailable READ unavailable NOTIFY changed)
  Q_PROPERTY(QString attribution READ attribution CONSTANT)

 public:
  struct State {
    bool enabled = false;
    bool available = false;
    QString temperature;
    QString condition;
    QString symbol;
    QString precipitation;
    QString highLow;
    QString sun;
    QString place;
    QString unavailable;
    friend bool operator==(const State&, const State&) = default;
  };

  using QObject::QObject;

  bool enabled() const { return state_.enabled; }
  bool available() const { return state_.available; }
  QString temperature() const { return state_.temperature; }
  QString condition() const { return state_.condition; }
  QString symbol() const { return state_.symbol; }
  QString precipitation() const { return state_.precipitation; }
  QString highLow() const { return state_.highLow; }
  QString sun() const { return state_.sun; }
  QString place() const { return state_.place; }
  QString unavailable() const { return state_.unavailable; }
  QString attribution() const { return tr("Weather data from MET Norway"); }
  const State& state() const { return state_; }

  void setState(State state) {
    if (state == state_) return;
    state_ = std::move(state);
    emit changed();
  }

 signals:
  void changed();

 private:
  State state_;
};

}  // namespace tindra
