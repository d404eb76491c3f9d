// DemoTour: a short scripted tour through the real providers, views and notch windows, fed by the
// fake backends (an invented track playing, a battery at 76 %): the track on the closed notch, a
// level indicator that lapses back to it, the pointer resting on the notch to open the panel,
// the track paused from its button, and leaving again. A desktop backdrop stands behind the
// notch; screenshots of each step go to a folder. Emits `finished` with the paths of the pictures.
#pragma once

#include <QDir>
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <functional>
#include <memory>
#include <vector>

#include "tindra_app.h"

class QWidget;

namespace tindra {

class DemoTour : public QObject {
  Q_OBJECT

 public:
  DemoTour(TindraApp& app, QDir folder, QObject* parent = nullptr);
  ~DemoTour() override;

  void start();

 signals:
  void finished(const QStringList& screenshots, bool ok);

 private:
  struct Step {
    int waitMs;  // before the step runs
    std::function<void()> run;
  };

  void next();
  void shoot(const QString& name);
  void showBackdrops();
  // Says why a step could not run; the tour then ends as failed.
  void fail(const QString& why);
  // The invented backend a step plays, or null (and the tour fails) when `what` runs for real.
  template <class Fake>
  Fake* invented(const char* what) {
    Fake* fake = app_.backends().find<Fake>();
    if (fake == nullptr) fail(QStringLiteral("%1 are not invented").arg(QLatin1String(what)));
    return fake;
  }

  TindraApp& app_;
  QDir folder_;
  std::vector<Step> steps_;
  std::size_t position_ = 0;
  QTimer timer_;
  QStringList shots_;
  bool ok_ = true;
  std::vector<std::unique_ptr<QWidget>> backdrops_;
};

}  // namespace tindra
