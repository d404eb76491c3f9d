// Choices about the windowing system that must be made before the first Qt object exists.
#pragma once

#include <Qt>

namespace tindra {

// Picks the Qt platform plugin the notch needs when the user has not chosen one (on Linux:
// X11 through XWayland under a Wayland session, where a client cannot place itself).
void selectDisplayPlatform();

// True when a graphical session is there to draw on.
bool hasGraphicalSession();

// Flags for the notch window: no frame, above other windows, never focused, not in the task bar,
// and free to sit over the desktop's top panel.
Qt::WindowFlags notchWindowFlags();

}  // namespace tindra
