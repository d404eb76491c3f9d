#include "diagnostics/frame_swap_report.h"

#include "diagnostics/frame_swaps.h"

namespace tindra {

void reportFrameSwapsIfAsked() {
  if (!qEnvironmentVariableIsSet("TINDRA_MEASURE_FRAMES")) return;
  onEveryFrameSwap([] { printWallClockStamp("frame swap"); });
}

}  // namespace tindra
