// WeatherSettingsEditor: the weather's own settings, under weatherEnabled: where the position
// comes from now; a place of the user's own, picked from the time zones' cities or given as a
// latitude and longitude (which then wins over every location service); the contact the
// forecast service may reach the user at; the temperature unit; and the data's source.
#pragma once

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>

#include "weather/weather_provider.h"

namespace tindra {

class WeatherSettingsEditor : public QWidget {
  Q_OBJECT

 public:
  // `zones` lists the cities offered; empty offers none.
  WeatherSettingsEditor(WeatherProvider& weather, ZoneTable zones, QWidget* parent = nullptr);

  // Takes the place named in the city field (a time zone's city, "Oslo" or "Europe/Oslo"); false
  // when there is none by that name.
  bool pickCity(const QString& name);
  // Takes the latitude and longitude fields as the place.
  void useCoordinates();
  // Forgets the user's place: the location services decide again.
  void clearPlace();
  QLineEdit& contact() { return contact_; }
  QComboBox& unit() { return unit_; }
  QString positionText() const { return position_.text(); }

 private:
  void save(WeatherPreferences preferences);
  void refresh();

  WeatherProvider& weather_;
  ZoneTable zones_;
  QLabel position_;
  QComboBox city_;
  QDoubleSpinBox latitude_;
  QDoubleSpinBox longitude_;
  QLineEdit contact_;
  QComboBox unit_;
  QLabel problem_;
};

}  // namespace tindra
