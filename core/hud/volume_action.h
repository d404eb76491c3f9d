// VolumeAction: what one volume key press asks for: a step up or down (fine or coarse) or a mute
// toggle.
#pragma once

#include <array>

#include "base/enum_table.h"

namespace tindra {

class VolumeAction {
 public:
  enum class Case { up, down, toggleMute };

  static VolumeAction up(bool fine) { return VolumeAction(Case::up, fine); }
  static VolumeAction down(bool fine) { return VolumeAction(Case::down, fine); }
  static VolumeAction toggleMute() { return VolumeAction(Case::toggleMute, false); }

  Case actionCase() const { return case_; }
  // Whether a step is a fine one; false for toggleMute.
  bool fine() const { return fine_; }

  friend bool operator==(const VolumeAction&, const VolumeAction&) = default;

 private:
  VolumeAction(Case c, bool fine) : case_(c), fine_(fine) {}

  Case case_;
  bool fine_;
};

template <>
struct EnumTable<VolumeAction::Case> {
  using E = VolumeAction::Case;
  static constexpr std::array cases{EnumCase{E::up, "up"}, EnumCase{E::down, "down"},
                                    EnumCase{E::toggleMute, "toggleMute"}};
};

}  // namespace tindra
