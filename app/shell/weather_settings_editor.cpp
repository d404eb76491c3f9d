#include "shell/weather_settings_editor.h"

#include <QCompleter>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>

#include "base/qt_text.h"

namespace tindra {

namespace {

// "America/Argentina/Buenos_Aires" → "Buenos Aires".
QString cityOf(const std::string& zone) {
  QString city = toQString(zone).section(QLatin1Char('/'), -1);
  return city.replace(QLatin1Char('_'), QLatin1Char(' '));
}

}  // namespace

WeatherSettingsEditor::WeatherSettingsEditor(WeatherProvider& weather, ZoneTable zones,
                                             QWidget* parent)
    : QWidget(parent), weather_(weather), zones_(std::move(zones)) {
  auto* form = new QFormLayout(this);
  form->setContentsMargins(12, 0, 0, 8);
  form->addRow(tr("Position in use:"), &position_);

  city_.setEditable(true);
  city_.setInsertPolicy(QComboBox::NoInsert);
  QStringList cities;
  for (const ZoneTable::Zone& zone : zones_.zones()) cities.append(cityOf(zone.name));
  cities.sort();
  cities.removeDuplicates();
  city_.addItems(cities);
  city_.setCurrentIndex(-1);
  city_.completer()->setFilterMode(Qt::MatchContains);
  city_.completer()->setCaseSensitivity(Qt::CaseInsensitive);
  city_.lineEdit()->setPlaceholderText(tr("Pick a city"));
  connect(&city_, &QComboBox::textActivated, this, &WeatherSettingsEditor::pickCity);
  form->addRow(tr("My place:"), &city_);

  latitude_.setRange(-90, 90);
  longitude_.setRange(-180, 180);
  for (QDoubleSpinBox* box : {&latitude_, &longitude_}) box->setDecimals(4);
  auto* use = new QPushButton(tr("Use These"));
  auto* clear = new QPushButton(tr("Use the Location Service"));
  connect(use, &QPushButton::clicked, this, &WeatherSettingsEditor::useCoordinates);
  connect(clear, &QPushButton::clicked, this, &WeatherSettingsEditor::clearPlace);
  auto* coordinates = new QHBoxLayout;
  coordinates->addWidget(&latitude_);
  coordinates->addWidget(&longitude_);
  coordinates->addWidget(use);
  coordinates->addWidget(clear);
  form->addRow(tr("Latitude, longitude:"), coordinates);

  contact_.setPlaceholderText(tr("An e-mail address MET Norway may reach you at (optional)"));
  connect(&contact_, &QLineEdit::editingFinished, this, [this] {
    WeatherPreferences preferences = weather_.preferences();
    preferences.contact = contact_.text().trimmed().toStdString();
    save(std::move(preferences));
  });
  form->addRow(tr("Contact:"), &contact_);

  unit_.addItem(tr("As the region says"), QStringLiteral("automatic"));
  unit_.addItem(tr("Celsius"), QStringLiteral("celsius"));
  unit_.addItem(tr("Fahrenheit"), QStringLiteral("fahrenheit"));
  connect(&unit_, &QComboBox::activated, this, [this](int index) {
    WeatherPreferences preferences = weather_.preferences();
    preferences.unit = enumFromRaw<TemperatureUnit>(unit_.itemData(index).toString().toStdString())
                           .value_or(TemperatureUnit::automatic);
    save(std::move(preferences));
  });
  form->addRow(tr("Unit:"), &unit_);

  problem_.setStyleSheet(QStringLiteral("color: #d70015"));
  problem_.setWordWrap(true);
  problem_.hide();
  form->addRow(&problem_);
  auto* attribution = new QLabel(weather_.viewModel()->attribution());
  attribution->setStyleSheet(QStringLiteral("color: gray"));
  form->addRow(attribution);
  connect(weather_.viewModel(), &WeatherViewModel::changed, this, &WeatherSettingsEditor::refresh);
  refresh();
}

bool WeatherSettingsEditor::pickCity(const QString& name) {
  const QString wanted = name.trimmed();
  for (const ZoneTable::Zone& zone : zones_.zones()) {
    if (cityOf(zone.name).compare(wanted, Qt::CaseInsensitive) != 0 &&
        toQString(zone.name).compare(wanted, Qt::CaseInsensitive) != 0) {
      continue;
    }
    WeatherPreferences preferences = weather_.preferences();
    preferences.location = zone.city;
    preferences.locationName = cityOf(zone.name).toStdString();
    save(std::move(preferences));
    return true;
  }
  problem_.setText(tr("No city called %1 is known.").arg(wanted));
  problem_.show();
  return false;
}

void WeatherSettingsEditor::useCoordinates() {
  WeatherPreferences preferences = weather_.preferences();
  preferences.location = GeoCoordinate{latitude_.value(), longitude_.value()};
  preferences.locationName.clear();
  save(std::move(preferences));
}

void WeatherSettingsEditor::clearPlace() {
  WeatherPreferences preferences = weather_.preferences();
  preferences.location.reset();
  preferences.locationName.clear();
  save(std::move(preferences));
}

void WeatherSettingsEditor::save(WeatherPreferences preferences) {
  const std::optional<QString> problem = weather_.setPreferences(std::move(preferences));
  problem_.setText(problem.value_or(QString()));
  problem_.setVisible(problem.has_value());
  refresh();
}

void WeatherSettingsEditor::refresh() {
  const WeatherPreferences& preferences = weather_.preferences();
  position_.setText(weather_.positionSource());
  if (preferences.location) {
    latitude_.setValue(preferences.location->latitude);
    longitude_.setValue(preferences.location->longitude);
  }
  if (!contact_.hasFocus()) contact_.setText(toQString(preferences.contact));
  unit_.setCurrentIndex(unit_.findData(toQString(rawValue(preferences.unit))));
}

}  // namespace tindra
