// Choices about the windowing system that must be made before the first Qt object exists.
#pragma once

#include <Qt>

class QWindow;

namespace tindra {

// Picks the Qt platform plugin the notch needs when the user has not chosen one (on Linux:
// X11 through XWayland under a Wayland session, where a client cannot place itself).
void selectDisplayPlatform();

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
