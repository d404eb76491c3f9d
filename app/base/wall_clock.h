// secondsSince1970: the wall clock, for dates (calendars, the weather, file tray items). Code
// takes it as a function, so tests can set the time.
#pragma once

#include <QDateTime>

namespace tindra {

inline double secondsSince1970() {
  return static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000.0;
}

}  // namespace tindra
