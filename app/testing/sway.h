// Drives the sway of a private session (scripts/private-session --sway or --sway-two) through
// swaymsg and grim: its outputs, its pointer, clients' windows and what an output shows. Each
// step waits until sway has done it; one that fails adds a test failure quoting the tool's answer
// and returns false, nullopt or a null image.
#pragma once

#include <QImage>
#include <QJsonObject>
#include <QPoint>
#include <QRect>
#include <QString>
#include <optional>
#include <ostream>
#include <vector>

namespace tindra {

// An output where sway lays it out, in logical pixels.
struct SwayOutput {
  QString name;
  QRect rect;

  bool operator==(const SwayOutput&) const = default;
};

void PrintTo(const SwayOutput& output, std::ostream* out);

// The "rect" of an output or of a node of sway's tree, in layout coordinates.
QRect rectOf(const QJsonObject& node);

class Sway {
 public:
  // Asks the session's sway (SWAYSOCK) for its version; quiet when there is none.
  Sway();

  // Whether the session has a sway that answers.
  bool running() const { return major_ > 0; }

  // Runs one command as a line of sway's configuration would say it. sway splits commands at
  // ';' and ',', so `line` holds neither unless it means to.
  bool command(const QString& line);

  // The active outputs, in sway's order.
  std::vector<SwayOutput> outputs();
  // A new headless output (1920x1080, right of the others): its name, once it is active.
  std::optional<QString> createOutput();
  // sway 1.7's headless outputs can neither be removed nor disabled; `unplug` came in 1.8.
  bool canUnplug() const;
  // Removes `output` and waits until it is gone.
  bool unplug(const QString& output);

  // The pointer, in layout coordinates; `button` counts as X11's do (1 the left one).
  bool movePointer(QPoint to);
  bool pressButton(int button = 1);
  bool releaseButton(int button = 1);
  bool click(QPoint at, int button = 1);

  // Starts `commandLine` through sway (so as TINDRA_SWAY_USER, in sway's environment) and waits
  // until one more window with `appId` is in sway's tree than there was.
  bool startClient(const QString& commandLine, const QString& appId, int timeoutMs = 10000);
  // The first window with `appId` as sway's tree has it ("rect", "fullscreen_mode", "pid", ...).
  std::optional<QJsonObject> window(const QString& appId);
  // The window with keyboard focus.
  std::optional<QJsonObject> focusedWindow();
  // Turns full screen on or off for the window with `appId`, or the focused one when `appId` is
  // empty, and waits until sway's tree says so.
  bool setFullScreen(bool on, const QString& appId = {});

  // What `output` shows, from grim: sway's plain grey (#3f3f3f) where no surface is, and the
  // pointer, which a headless output draws into the picture.
  QImage screenshot(const QString& output);

 private:
  std::vector<QJsonObject> windows();
  bool waitForFullScreen(bool on, const QString& appId);

  int major_ = 0;
  int minor_ = 0;
};

}  // namespace tindra
