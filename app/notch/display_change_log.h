// DisplayChangeLog: tells Diagnostics of every display that is connected or disconnected while
// Tindra runs, by the name Settings lists it under, so that a notch that moved or vanished with a
// monitor has its reason in the log.
#pragma once

#include <QObject>
#include <QStringList>

namespace tindra {

class DiagnosticsLog;
class ScreenSource;

class DisplayChangeLog : public QObject {
  Q_OBJECT

 public:
  DisplayChangeLog(ScreenSource& screens, DiagnosticsLog& diagnostics, QObject* parent = nullptr);

 private:
  QStringList names() const;
  void onScreensChanged();

  ScreenSource& screens_;
  DiagnosticsLog& diagnostics_;
  QStringList known_;
};

}  // namespace tindra
