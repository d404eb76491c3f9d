// Helpers for tests of the notch on real X displays: a plain desktop colour behind every notch,
// the display's pixels, and every display's notch window made as the app makes them.
#pragma once

#include <QColor>
#include <QGuiApplication>
#include <QImage>
#include <QRect>
#include <QTemporaryDir>
#include <QWidget>
#include <memory>
#include <utility>
#include <vector>

#include "base/activity_center.h"
#include "notch/notch_screen_manager.h"
#include "notch/screen_source.h"
#include "settings/settings_store.h"
#include "tindra_providers.h"
#include "views/notch_content.h"
#include "views/view_registry.h"

namespace tindra {

inline const QColor desktop(0x20, 0x60, 0xc0);

// A plain desktop colour behind the notch, so what is cut away is easy to tell from the notch.
std::vector<std::unique_ptr<QWidget>> showDesktops();
// What the X server shows on `screen`, root window and all.
QImage grabDisplay(QScreen* screen = QGuiApplication::primaryScreen());
bool isDesktop(const QImage& image, QPoint p);
// The notch's content is drawn inside it, so whatever is not desktop belongs to the notch.
bool isNotch(const QImage& image, QPoint p);
// The notch's run through `row` around `x`: its first and one-past-last columns.
std::pair<int, int> blackRun(const QImage& image, int row, int x);
// Checks the black outline on the display against the window's idea of the notch.
void expectDrawnAt(const QImage& image, const QRect& expected, const char* what);

// Every display's notch window, made as the app makes them, shown over the plain desktop.
class Displays {
 public:
  Displays();

  QTemporaryDir dir_;
  SettingsStore store_{dir_.filePath("settings.json").toStdString(), [] { return 0.0; }};
  ActivityCenter activities_{store_};
  ViewRegistry views_{TindraProviders::views()};
  NotchContent content_{activities_, store_, views_};
  std::unique_ptr<ScreenSource> screens_;
  std::unique_ptr<NotchScreenManager> manager_;
  std::vector<std::unique_ptr<QWidget>> desktops_;
};

}  // namespace tindra
