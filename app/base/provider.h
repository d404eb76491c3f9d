// Provider: one source of activities. A provider owns its backends (each an interface in its own
// folder, with a real backend per platform, a do-nothing one and a fake one), runs the core's
// parsers and policies on what they report, offers ActivityEvents to the ActivityCenter and
// exposes a QObject view model to the views it declares. Providers never talk to each other or
// to windows. Main thread only.
//
// Every provider type also has, for the app's registry (ProviderSet):
//   static constexpr std::string_view id = "battery";   its name in TINDRA_FAKE and diagnostics
//   static std::unique_ptr<T> make(ProviderContext&);   with the backends this platform gives it
//   static ProviderViews views();                       the QML views of its view model
#pragma once

#include <QLoggingCategory>
#include <QObject>
#include <QString>
#include <string_view>

#include "base/backend.h"
#include "base/diagnostics_log.h"
#include "base/qt_text.h"

namespace tindra {

class ActivityCenter;
class DiagnosticsLog;
class SettingsStore;
class SharedBackends;

// What every provider is given: the one activity centre, the settings and the diagnostics log;
// and, for making its backends, the backends it may share with others (null in tests that give
// a provider its backends themselves).
struct ProviderContext {
  ActivityCenter& activities;
  SettingsStore& settings;
  DiagnosticsLog& diagnostics;
  SharedBackends* shared = nullptr;
};

class Provider : public QObject {
  Q_OBJECT

 public:
  Provider(ProviderContext context, std::string_view id, QObject* parent = nullptr)
      : QObject(parent), context_(context), name_(toQString(id)) {}

  // Its name in TINDRA_FAKE and the diagnostics, and the key its views find its model by.
  const QString& name() const { return name_; }
  // Connects the backends and records their start-up checks in the diagnostics log.
  virtual void start() = 0;
  // The view model its QML views bind to; owned by the provider.
  virtual QObject* viewModel() = 0;

 protected:
  ActivityCenter& activities() const { return context_.activities; }
  SettingsStore& settings() const { return context_.settings; }
  DiagnosticsLog& diagnostics() const { return context_.diagnostics; }

  // Records `backend`'s check in the diagnostics log, under `source` (else the provider's name),
  // now and at each change, for as long as the backend lives.
  void followCheck(const QLoggingCategory& category, const Backend& backend,
                   const QString& source = {}) {
    const auto record = [this, &category, &backend, source] {
      diagnostics().record(category, source.isEmpty() ? name() : source, backend.check().outcome,
                           backend.check().text);
    };
    record();
    connect(&backend, &Backend::checkChanged, this, record);
  }

 private:
  ProviderContext context_;
  QString name_;
};

}  // namespace tindra
