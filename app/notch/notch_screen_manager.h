// NotchScreenManager: one NotchWindow per display that the user's display choice picks, placed by
// that display's notch geometry. Follows displays being added, removed or resized and the
// display and notch-size settings while running; windows of displays that stay are moved, not
// rebuilt.
#pragma once

#include <QObject>
#include <QTimer>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "notch/display_platform.h"
#include "notch/screen_source.h"
#include "settings/settings_store.h"

namespace tindra {

class ActivityCenter;
class NotchContent;
class NotchWindow;

class NotchScreenManager : public QObject {
  Q_OBJECT

 public:
  // `make` makes the windows (ordinary Qt windows when empty); `prepare` is called on every new
  // window before it is first shown.
  NotchScreenManager(ScreenSource& screens, SettingsStore& settings, ActivityCenter& activities,
                     NotchContent& content, std::function<void(NotchWindow&)> prepare = {},
                     NotchWindowMaker make = {}, QObject* parent = nullptr);
  ~NotchScreenManager() override;

  // The windows in display id order.
  std::vector<NotchWindow*> windows() const;
  // Applies the current displays and settings now (otherwise done on the next event-loop turn).
  void rebuild();
  // Hides every notch while `aside` (the screen is locked) and shows them again after.
  void setSteppedAside(bool aside);
  // Asked for each display, on every applyVisibility(): whether its notch steps aside (over a
  // full-screen window or a game).
  void setAsideOn(std::function<bool(const QRect& screen)> aside);
  void applyVisibility();

 signals:
  void windowsChanged();

 private:
  std::optional<double> simulatedHeight() const;
  bool shows(const NotchWindow& window) const;

  ScreenSource& screens_;
  SettingsStore& settings_;
  ActivityCenter& activities_;
  NotchContent& content_;
  std::function<void(NotchWindow&)> prepare_;
  NotchWindowMaker make_;
  bool steppedAside_ = false;
  std::function<bool(const QRect& screen)> asideOn_;
  SettingsObservation observation_;
  QTimer pending_;
  std::map<std::uint32_t, std::unique_ptr<NotchWindow>> windows_;
};

}  // namespace tindra
