#include "views/notch_appearance.h"

#include <QQmlEngine>

#include "activity/notch_color_style.h"
#include "settings/settings_keys.h"

namespace tindra {

namespace {

constexpr const char* engineProperty = "tindraAppearance";

}  // namespace

NotchAppearance::NotchAppearance(SettingsStore* settings, QObject* parent) : QObject(parent) {
  read(settings);
  if (settings == nullptr) return;
  observation_ = settings->observe(
      {std::string(settings::glassBackground.name), std::string(settings::notchColorStyle.name),
       std::string(settings::auraColorfulBars.name), std::string(settings::auraGlowWhenOpen.name),
       std::string(settings::auraFlashOnOpen.name), std::string(settings::auraRimWhenClosed.name)},
      [this, settings](std::string_view) {
        read(settings);
        emit changed();
      });
}

void NotchAppearance::read(const SettingsStore* settings) {
  const auto value = [settings](const auto& key) {
    return settings != nullptr ? settings->read(key) : key.defaultValue;
  };
  glass_ = value(settings::glassBackground);
  colorful_ = value(settings::notchColorStyle) == NotchColorStyle::colorful;
  colorfulBars_ = value(settings::auraColorfulBars);
  glowWhenOpen_ = value(settings::auraGlowWhenOpen);
  flashOnOpen_ = value(settings::auraFlashOnOpen);
  rimWhenClosed_ = value(settings::auraRimWhenClosed);
}

NotchAppearance* NotchAppearance::create(QQmlEngine* qml, QJSEngine*) {
  if (auto* appearance = qml->property(engineProperty).value<NotchAppearance*>()) {
    // The app owns it; the engine must not delete it with itself.
    QJSEngine::setObjectOwnership(appearance, QJSEngine::CppOwnership);
    return appearance;
  }
  return new NotchAppearance(nullptr);  // the engine's to delete
}

void NotchAppearance::attach(QQmlEngine& engine) {
  engine.setProperty(engineProperty, QVariant::fromValue(this));
}

QColor NotchAppearance::tint(const QColor& accent) const {
  return colorful_ || !accent.isValid() ? accent : QColor(Qt::white);
}

QColor NotchAppearance::bar(const QColor& color) const {
  return colorfulBars_ || !color.isValid() ? color : QColor(Qt::white);
}

}  // namespace tindra
