#include "lockscreen/lock_session_policy.h"

#include <cerrno>
#include <utility>

namespace tindra {

using Reason = LockScreenNotice::Reason;

namespace {

LockSessionPolicy::Launch disabled(Reason reason) {
  return {LockSessionPolicy::Disable{reason}, LockSessionRecord::fresh(), true};
}

}  // namespace

LockSessionPolicy::Launch LockSessionPolicy::launchVerdict(std::string_view storedBytes,
                                                           std::string_view bootSessionID) {
  if (storedBytes.empty()) return {Clean{}, LockSessionRecord::fresh(), true};
  auto record = LockSessionRecord::decode(storedBytes);
  if (!record) return disabled(Reason::unreadableRecord);
  if (!record->openSession) return {Clean{}, std::move(*record), false};
  if (record->openSession->bootSessionID == bootSessionID) {
    return disabled(Reason::stoppedWhileLocked);
  }
  const long long strikes = static_cast<long long>(record->restartStrikes) + 1;
  if (strikes >= strikeLimit) return disabled(Reason::restartedWhileLocked);
  LockSessionRecord kept;
  kept.restartStrikes = static_cast<int>(strikes);
  return {Tolerated{kept.restartStrikes}, kept, true};
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
