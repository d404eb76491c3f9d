// isGameApplication: whether a window's application is a game by its desktop entry
// (Categories=Game): the entry named by the application id, else by the window class, else the
// one whose StartupWMClass is the window class. Answers are kept per application; main thread.
#pragma once

#include <string>

namespace tindra {

bool isGameApplication(const std::string& applicationId, const std::string& windowClass);

}  // namespace tindra
