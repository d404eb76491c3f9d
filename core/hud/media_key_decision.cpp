#include "hud/media_key_decision.h"

namespace tindra {

std::optional<MediaKeyAction> MediaKeyDecision::action() const {
  if (const auto* observe = std::get_if<Observe>(&value_)) return observe->action;
  if (const auto* swallow = std::get_if<Swallow>(&value_)) return swallow->action;
  return std::nullopt;
}

}  // namespace tindra
