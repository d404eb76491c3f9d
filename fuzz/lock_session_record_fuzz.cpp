// Arbitrary bytes as the lock-session guard file: the reader must never crash, a record it reads
// must survive a write and read unchanged, and every launch verdict must hand back a record that
// reads as itself, with a disable always resetting the strikes.
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <variant>

#include "lockscreen/lock_screen_notice.h"
#include "lockscreen/lock_session_policy.h"

namespace {

void require(bool condition) {
  if (!condition) __builtin_trap();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using tindra::LockSessionPolicy;
  using tindra::LockSessionRecord;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);

  const auto record = LockSessionRecord::decode(bytes);
  if (record) {
    require(record->version == 1 && record->restartStrikes >= 0);
    require(LockSessionRecord::decode(record->encoded()) == *record);
  }

  const LockSessionPolicy::Launch launch = LockSessionPolicy::launchVerdict(bytes, "boot");
  require(LockSessionRecord::decode(launch.record.encoded()) == launch.record);
  require(!launch.record.openSession);
  // A record kept as it was may carry any count; one the policy writes stays under the limit.
  if (launch.recordChanged) require(launch.record.restartStrikes < LockSessionPolicy::strikeLimit);
  if (std::holds_alternative<LockSessionPolicy::Disable>(launch.verdict)) {
    require(launch.record == LockSessionRecord::fresh() && launch.recordChanged);
  }
  if (!launch.recordChanged) require(record && launch.record == *record);

  // The same bytes as a stored notice setting.
  if (const auto notice = tindra::LockScreenNotice::fromSettingText(bytes)) {
    require(tindra::LockScreenNotice::fromSettingText(notice->settingText()) == notice);
  }
  return 0;
}
