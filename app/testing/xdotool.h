// Drives the real pointer and keyboard through XTest with xdotool: one command line of steps,
// waited for.
#pragma once

#include <QStringList>

namespace tindra {

void xdotool(const QStringList& steps);

}  // namespace tindra
