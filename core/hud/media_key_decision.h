// MediaKeyDecision: what happens to one key event: it goes on to the system and the app then
// shows the result (observe), the app consumes it (swallow, with an action or none for key ups and
// ignored repeats), or it goes on untouched (passThrough).
#pragma once

#include <optional>
#include <variant>

#include "hud/media_key_action.h"

namespace tindra {

class MediaKeyDecision {
 public:
  struct Observe {
    MediaKeyAction action;
    friend bool operator==(const Observe&, const Observe&) = default;
  };
  struct Swallow {
    std::optional<MediaKeyAction> action;
    friend bool operator==(const Swallow&, const Swallow&) = default;
  };
  struct PassThrough {
    friend bool operator==(const PassThrough&, const PassThrough&) = default;
  };
  using Value = std::variant<Observe, Swallow, PassThrough>;

  static MediaKeyDecision observe(MediaKeyAction action) {
    return MediaKeyDecision(Observe{action});
  }
  static MediaKeyDecision swallow(std::optional<MediaKeyAction> action = std::nullopt) {
    return MediaKeyDecision(Swallow{action});
  }
  static MediaKeyDecision passThrough() { return MediaKeyDecision(PassThrough{}); }

  // True when the event must not reach the system.
  bool consumesEvent() const { return std::holds_alternative<Swallow>(value_); }
  // The action to carry out, if any.
  std::optional<MediaKeyAction> action() const;
  // For std::visit.
  const Value& value() const { return value_; }

  friend bool operator==(const MediaKeyDecision&, const MediaKeyDecision&) = default;

 private:
  explicit MediaKeyDecision(Value value) : value_(value) {}

  Value value_;
};

}  // namespace tindra
