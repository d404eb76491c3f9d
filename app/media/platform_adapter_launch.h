// How this platform runs the now-playing adapter. The desktop's is the tindra-mpris-adapter
// helper: beside the tindra program when installed, in the build tree's tools/ folder when run
// from a build, or else wherever PATH finds it (a missing one makes the self-test say so).
#pragma once

#include "nowplaying/adapter_launch.h"

namespace tindra {

AdapterLaunch platformAdapterLaunch();

}  // namespace tindra
