// Choices about the windowing system that must be made before the first Qt object exists.
#pragma once

#include <Qt>
#include <functional>
#include <memory>

#include "base/sentence.h"

class QWindow;

namespace tindra {

class ActivityCenter;
class NotchContent;
class NotchWindow;
class SettingsStore;
class SharedBackends;

// How the notch reaches the screen, chosen once before Qt starts.
struct DisplayPlatform {
  // A layer surface on the Wayland compositor, drawn by Tindra itself; otherwise a window of
  // Qt's (X11, or XWayland under a Wayland session).
  bool layerShell = false;
  // The choice and why, for the diagnostics (the text in the "Backends" context, translated
  // when asked for, after Qt has started).
  const char* reason = nullptr;

  Sentence reasonSentence() const { return Sentence::in("Backends", reason); }
};

// Picks the Qt platform plugin and the notch's way to the screen when the user has not chosen
// them (TINDRA_PLATFORM=x11|wayland, or QT_QPA_PLATFORM): on Linux, a layer surface where the
// Wayland compositor offers the layer shell, else X11, through XWayland under a Wayland session.
void selectDisplayPlatform();
const DisplayPlatform& displayPlatform();

// Makes the notch windows of the chosen platform.
using NotchWindowMaker =
    std::function<std::unique_ptr<NotchWindow>(ActivityCenter&, SettingsStore&, NotchContent&)>;
NotchWindowMaker notchWindowMaker(SharedBackends& shared);

// True when a graphical session is there to draw on.
bool hasGraphicalSession();

// Flags for the notch window: no frame, above other windows, never focused, not in the task bar,
// and free to sit over the desktop's top panel.
Qt::WindowFlags notchWindowFlags();

// Asks the compositor to blur what lies behind `window` where it is translucent, or to stop. On
// X11 this is KWin's _KDE_NET_WM_BLUR_BEHIND_REGION (also read by picom); compositors that do not
// know it draw the window unblurred.
void setBlurBehind(QWindow& window, bool on);

}  // namespace tindra
