#include "hud/better_display_osd.h"

#include <cmath>
#include <string>

#include "settings/json_reader.h"

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

const double* numberMember(const JSONValue& object, std::string_view name) {
  const JSONValue* member = object.find(name);
  return member ? member->asNumber() : nullptr;
}

std::optional<Target> target(const JSONValue& object) {
  const JSONValue* control = object.find("controlTarget");
  if (const std::string* name = control ? control->asString() : nullptr) {
    return targetFromControl(*name);
  }
  const double* icon = numberMember(object, "systemIconID");
  if (icon && std::isfinite(*icon) && std::trunc(*icon) == *icon) return targetFromIcon(*icon);
  return std::nullopt;
}

}  // namespace

std::optional<BetterDisplayOSD::Result> BetterDisplayOSD::parse(std::string_view payload) {
  if (payload.size() > maxPayloadBytes) return std::nullopt;
  const auto document = JSONReader::parse(payload);
  if (!document || !document->asObject()) return std::nullopt;
  const std::optional<Target> found = target(*document);
  if (!found) return std::nullopt;

  const double* maxValue = numberMember(*document, "maxValue");
  const double max = maxValue && std::isfinite(*maxValue) && *maxValue > 0 ? *maxValue : 1.0;
  const double* value = numberMember(*document, "value");
  if (value && std::isfinite(*value)) {
    const double quotient = *value / max;
    // An overflowing quotient says nothing about the level, so it shows as empty, like a negative.
    const double level = !std::isfinite(quotient) || !(quotient > 0) ? 0
                         : quotient >= 1                             ? 1
                                                                     : quotient;
    return Result{found->kind, level, found->isMuted};
  }
  // A mute without a value is still worth showing: the bar is empty anyway.
  if (found->isMuted) return Result{found->kind, 0, true};
  return std::nullopt;
}

}  // namespace tindra
