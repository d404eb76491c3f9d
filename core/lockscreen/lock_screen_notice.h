// LockScreenNotice: why the lock-screen features were turned off, kept as JSON text in the notice
// setting of each feature (the empty string means no notice). The date is a JSON number of
// seconds since 1970, as in the lock-session record.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "base/enum_table.h"
#include "lockscreen/lock_screen_feature.h"

namespace tindra {

struct LockScreenNotice {
  enum class Reason {
    stoppedWhileLocked,
    restartedWhileLocked,
    unreadableRecord,
    unsupportedSystem
  };

  static constexpr std::string_view title = "The lock screen features were turned off";

  Reason reason = Reason::unreadableRecord;
  double date = 0;  // seconds since 1970 of the decision
  std::string osVersion;

  // The text shown under the title; only unsupportedSystem names the feature.
  static std::string_view message(Reason reason,
                                  LockScreenFeature feature = LockScreenFeature::widgets);

  // {"date":…,"osVersion":…,"reason":…}
  std::string settingText() const;
  // None for the empty string and for text that is not a notice.
  static std::optional<LockScreenNotice> fromSettingText(std::string_view text);

  friend bool operator==(const LockScreenNotice&, const LockScreenNotice&) = default;
};

template <>
struct EnumTable<LockScreenNotice::Reason> {
  using Reason = LockScreenNotice::Reason;
  static constexpr std::array cases{EnumCase{Reason::stoppedWhileLocked, "stoppedWhileLocked"},
                                    EnumCase{Reason::restartedWhileLocked, "restartedWhileLocked"},
                                    EnumCase{Reason::unreadableRecord, "unreadableRecord"},
                                    EnumCase{Reason::unsupportedSystem, "unsupportedSystem"}};
};

}  // namespace tindra
