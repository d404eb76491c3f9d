#include "hud/better_display_osd.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "base/json_reader.h"

namespace tindra {

namespace {

struct Target {
  HUDKind kind;
  bool isMuted;
};

std::optional<Target> targetFromControl(const std::string& control) {
  if (control == "combinedBrightness" || control == "hardwareBrightness" ||
      control == "softwareBrightness") {
    return Target{HUDKind::brightness, false};
  }
  if (control == "volume") return Target{HUDKind::volume, false};
  if (control == "mute") return Target{HUDKind::volume, true};
  return std::nullopt;
}

std::optional<Target> targetFromIcon(double iconID) {
  if (iconID == 1) return Target{HUDKind::brightness, false};
  if (iconID == 3) return Target{HUDKind::volume, false};
  if (iconID == 4) return Target{HUDKind::volume, true};
  return std::nullopt;
}

// An overflowing quotient says nothing about the level, so it shows as empty, like a negative.
double levelFromQuotient(double quotient) {
  if (!std::isfinite(quotient) || !(quotient > 0)) return 0;
  return std::min(quotient, 1.0);
}

const double* numberMember(const JSONValue& object, std::string_view name) {
  const JSONValue* member = object.find(name);
  return member != nullptr ? member->asNumber() : nullptr;
}

std::optional<Target> target(const JSONValue& object) {
  const JSONValue* control = object.find("controlTarget");
  if (const std::string* name = control != nullptr ? control->asString() : nullptr) {
    return targetFromControl(*name);
  }
  const double* icon = numberMember(object, "systemIconID");
  if (icon != nullptr && std::isfinite(*icon) && std::trunc(*icon) == *icon) {
    return targetFromIcon(*icon);
  }
  return std::nullopt;
}

}  // namespace

std::optional<BetterDisplayOSD::Result> BetterDisplayOSD::parse(std::string_view payload) {
  if (payload.size() > maxPayloadBytes) return std::nullopt;
  const auto document = JSONReader::parse(payload);
  if (!document || document->asObject() == nullptr) return std::nullopt;
  const std::optional<Target> found = target(*document);
  if (!found) return std::nullopt;

  const double* maxValue = numberMember(*document, "maxValue");
  const double max =
      maxValue != nullptr && std::isfinite(*maxValue) && *maxValue > 0 ? *maxValue : 1.0;
  const double* value = numberMember(*document, "value");
  if (value != nullptr && std::isfinite(*value)) {
    return Result{found->kind, levelFromQuotient(*value / max), found->isMuted};
  }
  // A mute without a value is still worth showing: the bar is empty anyway.
  if (found->isMuted) return Result{found->kind, 0, true};
  return std::nullopt;
}

}  // namespace tindra
