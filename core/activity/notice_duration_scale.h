// NoticeDurationScale: the user's notice length, stored by its raw string in the settings.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "base/enum_table.h"

namespace tindra {

enum class NoticeDurationScale { short_, medium, long_ };

template <>
struct EnumTable<NoticeDurationScale> {
  static constexpr std::array cases{EnumCase{NoticeDurationScale::short_, "short"},
                                    EnumCase{NoticeDurationScale::medium, "medium"},
                                    EnumCase{NoticeDurationScale::long_, "long"}};
};

// Scales a notice duration: short takes 40 % off but never below 1.5 s (and never lengthens a
// shorter one), long adds 60 %. Medium, not-finite and non-positive durations pass unchanged.
double scale(NoticeDurationScale scale, double seconds);

}  // namespace tindra
