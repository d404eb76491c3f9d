#include "activity/display_picker.h"

#include <algorithm>

namespace tindra {
namespace {

bool isSelected(const DisplayCandidate& candidate, const DisplaySelection& selection,
                const DisplayPicker::NameMatch& refersTo) {
  switch (selection.kind()) {
    case DisplaySelection::Kind::named:
      return refersTo ? refersTo(candidate, selection.name()) : candidate.name == selection.name();
    case DisplaySelection::Kind::all:
      return true;
    case DisplaySelection::Kind::main:
      return candidate.isMain;
    case DisplaySelection::Kind::builtIn:
      return candidate.isBuiltIn;
  }
  return false;
}

std::vector<DisplayCandidate> selected(const std::vector<DisplayCandidate>& ordered,
                                       const DisplaySelection& selection,
                                       const DisplayPicker::NameMatch& refersTo = {}) {
  std::vector<DisplayCandidate> result;
  std::ranges::copy_if(ordered, std::back_inserter(result), [&](const DisplayCandidate& c) {
    return isSelected(c, selection, refersTo);
  });
  return result;
}

}  // namespace

std::vector<DisplayCandidate> DisplayPicker::pick(std::span<const DisplayCandidate> candidates,
                                                  const DisplaySelection& selection,
                                                  bool showOnDisplaysWithoutNotch,
                                                  const NameMatch& refersTo) {
  std::vector<DisplayCandidate> ordered(candidates.begin(), candidates.end());
  std::ranges::stable_sort(ordered, {}, &DisplayCandidate::id);

  std::vector<DisplayCandidate> chosen = selected(ordered, selection, refersTo);
  if (chosen.empty()) chosen = selected(ordered, DisplaySelection::main());
  if (chosen.empty() && !ordered.empty()) chosen.push_back(ordered.front());

  if (!showOnDisplaysWithoutNotch) {
    std::erase_if(chosen, [](const DisplayCandidate& c) { return !c.hasHardwareNotch; });
  }
  return chosen;
}

}  // namespace tindra
