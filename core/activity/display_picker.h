// DisplayPicker: the displays that get a notch window, from the attached candidates, the user's
// selection and whether displays without a hardware notch get a drawn one.
//
// When the selection matches no attached display (a named monitor that is unplugged, builtIn
// with the lid closed) the notch moves to the main display, or to the first display when none
// is main, rather than disappearing; it returns as soon as the chosen display is back. A display
// without a hardware notch is still left out unless drawn notches are on. The result is sorted
// by id (the platform's order of equal ids kept), so the same displays always come out in the
// same order however the platform lists them, and "first" means the lowest id.
#pragma once

#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "activity/display_candidate.h"
#include "activity/display_selection.h"

namespace tindra {

struct DisplayPicker {
  // Whether the name a `named` selection keeps means `candidate`. Without one, only a candidate
  // of exactly that name does; a platform whose names change (a monitor once known by its
  // connector) says which older names still mean it.
  using NameMatch = std::function<bool(const DisplayCandidate& candidate, std::string_view name)>;

  static std::vector<DisplayCandidate> pick(std::span<const DisplayCandidate> candidates,
                                            const DisplaySelection& selection,
                                            bool showOnDisplaysWithoutNotch,
                                            const NameMatch& refersTo = {});
};

}  // namespace tindra
