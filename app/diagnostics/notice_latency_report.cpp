#include "diagnostics/notice_latency_report.h"

#include <atomic>
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
    if (pending->exchange(false)) printWallClockStamp("notice on screen");
  });
}

}  // namespace tindra
