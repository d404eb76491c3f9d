#include "nowplaying/apple_script_arbiter.h"

namespace tindra::AppleScriptArbiter {
namespace {

// Lower ranks win: playing before paused, then the player order.
int rank(const Report& report) {
  const int playingFirst = report.status.snapshot->isPlaying ? 0 : 1;
  return playingFirst * static_cast<int>(allCases<AppleScriptPlayer>().size()) +
         static_cast<int>(report.player);
}

}  // namespace

std::optional<NowPlayingSnapshot> pick(std::span<const Report> reports) {
  const Report* best = nullptr;
  for (const Report& report : reports) {
    if (report.status.kind != AppleScriptPlayerStatus::Kind::playing) continue;
    if (!report.status.snapshot) continue;
    if (best == nullptr || rank(report) < rank(*best)) best = &report;
  }
  if (best == nullptr) return std::nullopt;
  return best->status.snapshot;
}

}  // namespace tindra::AppleScriptArbiter
