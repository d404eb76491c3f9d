// TravelTransport: how the user travels to meetings, for the travel time before a departure.
#pragma once

#include <array>

#include "base/enum_table.h"

namespace tindra {

enum class TravelTransport { automobile, walking, transit };

template <>
struct EnumTable<TravelTransport> {
  static constexpr std::array cases{EnumCase{TravelTransport::automobile, "automobile"},
                                    EnumCase{TravelTransport::walking, "walking"},
                                    EnumCase{TravelTransport::transit, "transit"}};
};

}  // namespace tindra
