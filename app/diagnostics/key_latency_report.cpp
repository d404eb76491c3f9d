#include "diagnostics/key_latency_report.h"

#include <atomic>
#include <cstdio>
#include <memory>

#include "diagnostics/frame_swaps.h"
#include "levels/hud_view_model.h"

namespace tindra {

void reportKeyLatencyIfAsked(const HudViewModel& model) {
  if (!qEnvironmentVariableIsSet("TINDRA_MEASURE_KEYS")) return;
  using Clock = std::chrono::steady_clock;
  // The pending key's time in nanoseconds, 0 when none; frames may swap on the render thread.
  auto pending = std::make_shared<std::atomic<Clock::rep>>(0);
  QObject::connect(&model, &HudViewModel::shownForKey, &model, [pending](Clock::time_point at) {
    pending->store(at.time_since_epoch().count());
  });
  onEveryFrameSwap([pending] {
    const Clock::rep at = pending->exchange(0);
    if (at == 0) return;
    const auto elapsed = Clock::now() - Clock::time_point(Clock::duration(at));
    std::printf("key to frame: %.2f ms\n",
                std::chrono::duration<double, std::milli>(elapsed).count());
    std::fflush(stdout);
  });
}

}  // namespace tindra
