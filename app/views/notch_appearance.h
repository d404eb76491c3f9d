// NotchAppearance: how the notch looks, as the user chose it: the glass of the opened notch, its
// colours (white, or the colours of what it shows), the coloured bars and the aura: a rim around
// the closed notch, a glow inside the opened one and a flash as it opens. Settings changes apply
// at once. One per app, shared by the notches of all displays; QML reads it as the singleton
// "Appearance" of each notch window's engine.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QObject>

#include "settings/settings_store.h"

class QQmlEngine;
class QJSEngine;

namespace tindra {

class NotchAppearance : public QObject {
  Q_OBJECT
  QML_NAMED_ELEMENT(Appearance)
  QML_SINGLETON
  Q_PROPERTY(bool glass READ glass NOTIFY changed)
  Q_PROPERTY(bool colorful READ colorful NOTIFY changed)
  Q_PROPERTY(bool colorfulBars READ colorfulBars NOTIFY changed)
  Q_PROPERTY(bool glowWhenOpen READ glowWhenOpen NOTIFY changed)
  Q_PROPERTY(bool flashOnOpen READ flashOnOpen NOTIFY changed)
  Q_PROPERTY(bool rimWhenClosed READ rimWhenClosed NOTIFY changed)

 public:
  // Without settings, the defaults, unchanging.
  explicit NotchAppearance(SettingsStore* settings, QObject* parent = nullptr);

  // The QML singleton: the instance `attach` gave the engine; the defaults for an engine the app
  // gave none (a single view drawn in a test).
  static NotchAppearance* create(QQmlEngine* qml, QJSEngine* engine);
  void attach(QQmlEngine& engine);

  bool glass() const { return glass_; }
  bool colorful() const { return colorful_; }
  bool colorfulBars() const { return colorfulBars_; }
  bool glowWhenOpen() const { return glowWhenOpen_; }
  bool flashOnOpen() const { return flashOnOpen_; }
  bool rimWhenClosed() const { return rimWhenClosed_; }

  // An accent as drawn: itself in colour, white in black and white.
  Q_INVOKABLE QColor tint(const QColor& accent) const;
  // A level or spectrum bar's colour: its own when bars are coloured, else white.
  Q_INVOKABLE QColor bar(const QColor& color) const;

 signals:
  void changed();

 private:
  void read(const SettingsStore* settings);

  SettingsObservation observation_;
  bool glass_ = false;
  bool colorful_ = false;
  bool colorfulBars_ = false;
  bool glowWhenOpen_ = false;
  bool flashOnOpen_ = false;
  bool rimWhenClosed_ = false;
};

}  // namespace tindra
