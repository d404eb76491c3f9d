// onEveryFrameSwap: calls `swapped` after each frame any notch window puts on screen, on the
// render thread, for the measurements of scripts/measure. Call once the windows exist.
#pragma once

#include <QGuiApplication>
#include <QQuickWindow>
#include <chrono>
#include <cstdio>
#include <functional>

namespace tindra {

inline void onEveryFrameSwap(const std::function<void()>& swapped) {
  for (QWindow* window : QGuiApplication::topLevelWindows()) {
    if (auto* quick = qobject_cast<QQuickWindow*>(window)) {
      QObject::connect(quick, &QQuickWindow::frameSwapped, quick, swapped, Qt::DirectConnection);
    }
  }
}

// Prints "`label`: N" on standard output, N being the wall-clock microseconds since 1970, which
// scripts/measure sets against the moment it acted from outside.
inline void printWallClockStamp(const char* label) {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  std::printf(
      "%s: %lld\n", label,
      static_cast<long long>(std::chrono::duration_cast<std::chrono::microseconds>(now).count()));
  std::fflush(stdout);
}

}  // namespace tindra
