// onEveryFrameSwap: calls `swapped` after each frame any notch window puts on screen, on the
// render thread, for the measurements of scripts/measure. Call once the windows exist.
#pragma once

#include <QGuiApplication>
#include <QQuickWindow>
#include <functional>

namespace tindra {

inline void onEveryFrameSwap(const std::function<void()>& swapped) {
  for (QWindow* window : QGuiApplication::topLevelWindows()) {
    if (auto* quick = qobject_cast<QQuickWindow*>(window)) {
      QObject::connect(quick, &QQuickWindow::frameSwapped, quick, swapped, Qt::DirectConnection);
    }
  }
}

}  // namespace tindra
