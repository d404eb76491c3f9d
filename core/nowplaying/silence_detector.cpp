#include "nowplaying/silence_detector.h"

namespace tindra {

bool SilenceDetector::update(float peak, double now) {
  if (!(peak < threshold)) {  // also NaN
    silentSince.reset();
    return false;
  }
  if (!silentSince || now < *silentSince) silentSince = now;
  return now - *silentSince >= requiredDuration;
}

}  // namespace tindra
