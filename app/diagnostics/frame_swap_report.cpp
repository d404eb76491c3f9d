#include "diagnostics/frame_swap_report.h"

#include <chrono>
#include <cstdio>

#include "diagnostics/frame_swaps.h"

namespace tindra {

void reportFrameSwapsIfAsked() {
  if (!qEnvironmentVariableIsSet("TINDRA_MEASURE_FRAMES")) return;
  onEveryFrameSwap([] {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    std::printf(
        "frame swap: %lld\n",
        static_cast<long long>(std::chrono::duration_cast<std::chrono::microseconds>(now).count()));
    std::fflush(stdout);
  });
}

}  // namespace tindra
