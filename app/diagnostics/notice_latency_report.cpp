#include "diagnostics/notice_latency_report.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <memory>

#include "base/activity_center.h"
#include "diagnostics/frame_swaps.h"

namespace tindra {

void reportNoticeLatencyIfAsked(const ActivityCenter& activities) {
  if (!qEnvironmentVariableIsSet("TINDRA_MEASURE_NOTICES")) return;
  auto pending = std::make_shared<std::atomic<bool>>(false);
  QObject::connect(&activities, &ActivityCenter::currentChanged, &activities,
                   [pending](ActivityKind kind) {
                     if (kind == ActivityKind::message || kind == ActivityKind::incomingCall) {
                       pending->store(true);
                     }
                   });
  onEveryFrameSwap([pending] {
    if (!pending->exchange(false)) return;
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    std::printf(
        "notice on screen: %lld\n",
        static_cast<long long>(std::chrono::duration_cast<std::chrono::microseconds>(now).count()));
    std::fflush(stdout);
  });
}

}  // namespace tindra
