// DisplayCandidate: one attached display as the settings offer it and the picker chooses among.
#pragma once

#include <cstdint>
#include <string>

namespace tindra {

struct DisplayCandidate {
  std::uint32_t id = 0;  // the platform's display number; stable while the display is attached
  std::string name{};    // localised, as shown to the user and stored by a named selection
  bool isBuiltIn = false;
  bool isMain = false;  // holds the menu bar
  bool hasHardwareNotch = false;

  friend bool operator==(const DisplayCandidate&, const DisplayCandidate&) = default;
};

}  // namespace tindra
