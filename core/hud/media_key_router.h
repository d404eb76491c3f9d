// MediaKeyRouter: decides, for each media-key event, whether the notch takes it (swallow), lets
// the system handle it and shows the result (observe), or leaves it alone (passThrough). A key is
// only taken where the program can really change the level. Pure; safe on the key-capture thread.
#pragma once

#include <optional>

#include "hud/function_key_event.h"
#include "hud/key_modifiers.h"
#include "hud/media_key_context.h"
#include "hud/media_key_decision.h"
#include "hud/system_defined_key_event.h"

namespace tindra {

struct MediaKeyRouter {
  MediaKeyRouter() = delete;

  // The decision for one decoded media key (none for an unknown code). Option together with Shift
  // asks for fine steps; Option alone, Control and Command leave the key to the system.
  static MediaKeyDecision decide(std::optional<SystemDefinedKeyEvent::Key> key, bool isKeyDown,
                                 bool isRepeat, KeyModifiers modifiers,
                                 const MediaKeyContext& context);

  // The decision for an external keyboard's F14/F15 brightness key: only plain key downs are
  // taken, and only coarse steps.
  static MediaKeyDecision decideFunctionKey(const FunctionKeyEvent& event, KeyModifiers modifiers,
                                            const MediaKeyContext& context);
};

}  // namespace tindra
