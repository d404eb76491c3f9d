// The screen source of the platform the app was built for.
#pragma once

#include <memory>

#include "notch/screen_source.h"

namespace tindra {

std::unique_ptr<ScreenSource> makePlatformScreenSource(QObject* parent = nullptr);

}  // namespace tindra
