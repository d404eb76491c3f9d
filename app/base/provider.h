// Provider: one source of activities. A provider owns one backend (declared in its own folder,
// implemented per platform, with a do-nothing and a fake variant), runs the core's parsers and
// policies on what the backend reports, offers ActivityEvents to the ActivityCenter and exposes
// a QObject view model to its views. Providers never talk to each other or to windows.
// Main thread only.
#pragma once

#include <QObject>
#include <QString>

namespace tindra {

class ActivityCenter;
class DiagnosticsLog;
class SettingsStore;

// What every provider is given: the one activity centre, the settings and the diagnostics log.
struct ProviderContext {
  ActivityCenter& activities;
  SettingsStore& settings;
  DiagnosticsLog& diagnostics;
};

class Provider : public QObject {
  Q_OBJECT

 public:
  Provider(ProviderContext context, QObject* parent = nullptr)
      : QObject(parent), context_(context) {}

  // The section name of its panel part and its name in TINDRA_FAKE and diagnostics
  // ("battery", "media", ...).
  virtual QString name() const = 0;
  // Connects the backend and records the start-up check in the diagnostics log.
  virtual void start() = 0;
  // The view model its QML views bind to; owned by the provider.
  virtual QObject* viewModel() = 0;

 protected:
  ActivityCenter& activities() const { return context_.activities; }
  SettingsStore& settings() const { return context_.settings; }
  DiagnosticsLog& diagnostics() const { return context_.diagnostics; }

 private:
  ProviderContext context_;
};

}  // namespace tindra
