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

class QWidget;

namespace tindra {

class TindraApp;

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
