#include "diagnostics/first_frame_report.h"

#include <QDateTime>
#include <QGuiApplication>
#include <QQuickWindow>
#include <cstdio>
#include <memory>

namespace tindra {

void reportFirstFrameIfAsked() {
  bool ok = false;
  const qint64 launchedAt = qEnvironmentVariable("TINDRA_LAUNCHED_AT").toLongLong(&ok);
  if (!ok) return;
  auto reported = std::make_shared<bool>(false);
  for (QWindow* window : QGuiApplication::topLevelWindows()) {
    auto* quick = qobject_cast<QQuickWindow*>(window);
    if (!quick) continue;
    QObject::connect(quick, &QQuickWindow::frameSwapped, quick, [launchedAt, reported] {
      if (*reported) return;
      *reported = true;
      std::printf("first frame: %lld ms after launch\n",
                  static_cast<long long>(QDateTime::currentMSecsSinceEpoch() - launchedAt));
      std::fflush(stdout);
    });
  }
}

}  // namespace tindra
