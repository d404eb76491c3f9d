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

#include <span>
#include <vector>

#include "activity/display_candidate.h"
#include "activity/display_selection.h"

namespace tindra {

struct DisplayPicker {
  static std::vector<DisplayCandidate> pick(std::span<const DisplayCandidate> candidates,
                                            const DisplaySelection& selection,
                                            bool showOnDisplaysWithoutNotch);
};

}  // namespace tindra
