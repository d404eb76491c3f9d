#include "hud/volume_feedback_policy.h"

#include <string>

namespace tindra {

namespace {

bool isASCIISpace(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f';
}

std::string trimmedLowercase(std::string_view text) {
  while (!text.empty() && isASCIISpace(text.front())) text.remove_prefix(1);
  while (!text.empty() && isASCIISpace(text.back())) text.remove_suffix(1);
  std::string lowered(text);
  for (char& c : lowered) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lowered;
}

}  // namespace

std::optional<bool> VolumeFeedbackPolicy::systemSetting(const JSONValue& value) {
  if (const bool* flag = value.asBool()) return *flag;
  if (const double* number = value.asNumber()) return *number != 0;
  if (const std::string* text = value.asString()) {
    const std::string word = trimmedLowercase(*text);
    if (word == "1" || word == "true" || word == "yes") return true;
    if (word == "0" || word == "false" || word == "no") return false;
  }
  return std::nullopt;
}

bool VolumeFeedbackPolicy::shouldPlay(VolumeAction action, VolumeState result,
                                      std::optional<bool> systemSetting, bool fallback,
                                      KeyModifiers modifiers, bool isYielded) {
  // A yielded key gets the system's own sound.
  if (isYielded || result.isMuted || !(result.level > 0)) return false;
  if (action.actionCase() == VolumeAction::Case::toggleMute) return false;
  return systemSetting.value_or(fallback) != modifiers.contains(KeyModifiers::shift());
}

}  // namespace tindra
