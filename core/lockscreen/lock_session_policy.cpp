#include "lockscreen/lock_session_policy.h"

#include <cerrno>
#include <utility>

namespace tindra {

using Reason = LockScreenNotice::Reason;

namespace {

LockSessionPolicy::Launch disabled(Reason reason) {
  return {.verdict = LockSessionPolicy::Disable{reason},
          .record = LockSessionRecord::fresh(),
          .recordChanged = true};
}

}  // namespace

LockSessionPolicy::Launch LockSessionPolicy::launchVerdict(std::string_view storedBytes,
                                                           std::string_view bootSessionID) {
  if (storedBytes.empty()) {
    return {.verdict = Clean{}, .record = LockSessionRecord::fresh(), .recordChanged = true};
  }
  auto record = LockSessionRecord::decode(storedBytes);
  if (!record) return disabled(Reason::unreadableRecord);
  const std::optional<LockSessionMarker>& session = record->openSession;
  if (!session) return {.verdict = Clean{}, .record = std::move(*record), .recordChanged = false};
  if (session->bootSessionID == bootSessionID) {
    return disabled(Reason::stoppedWhileLocked);
  }
  const long long strikes = static_cast<long long>(record->restartStrikes) + 1;
  if (strikes >= strikeLimit) return disabled(Reason::restartedWhileLocked);
  LockSessionRecord kept;
  kept.restartStrikes = static_cast<int>(strikes);
  return {.verdict = Tolerated{kept.restartStrikes}, .record = kept, .recordChanged = true};
}

LockSessionPolicy::Launch LockSessionPolicy::launchVerdictFromRead(
    const std::expected<std::string, int>& stored, std::string_view bootSessionID) {
  if (stored) return launchVerdict(std::string_view(*stored), bootSessionID);
  if (stored.error() == ENOENT) return launchVerdict(std::string_view(), bootSessionID);
  return disabled(Reason::unreadableRecord);
}

LockSessionRecord LockSessionPolicy::recordForBegin(const LockSessionRecord& current,
                                                    LockSessionMarker marker) {
  LockSessionRecord record;
  record.openSession = std::move(marker);
  record.restartStrikes = current.restartStrikes;
  return record;
}

std::vector<LockScreenFeature> LockSessionPolicy::featuresToTurnOff(const LaunchVerdict& verdict,
                                                                    bool widgetsOn, bool notchOn) {
  std::vector<LockScreenFeature> features;
  if (!std::holds_alternative<Disable>(verdict)) return features;
  if (widgetsOn) features.push_back(LockScreenFeature::widgets);
  if (notchOn) features.push_back(LockScreenFeature::notch);
  return features;
}

}  // namespace tindra
