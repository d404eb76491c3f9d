#include "nowplaying/adapter_state_fields.h"

namespace tindra {

void AdapterStateFields::rebuild(JSONValue::Object& state) {
  *this = AdapterStateFields();
  for (auto& [name, value] : state) update(name, &value);
}

void AdapterStateFields::update(std::string_view name, JSONValue* value) {
  if (JSONValue** slot = slotFor(name)) *slot = value;
}

JSONValue* AdapterStateFields::find(std::string_view name) {
  JSONValue** slot = slotFor(name);
  return slot ? *slot : nullptr;
}

// Dispatches on the length first, so an unknown name costs one comparison at most.
JSONValue** AdapterStateFields::slotFor(std::string_view name) {
  auto is = [&](std::string_view known, JSONValue*& slot) -> JSONValue** {
    return name == known ? &slot : nullptr;
  };
  switch (name.size()) {
    case 5:
      return name[0] == 't' ? is("title", title) : is("album", album);
    case 6:
      return is("artist", artist);
    case 7:
      return is("playing", playing);
    case 8:
      return is("duration", duration);
    case 9:
      return is("timestamp", timestamp);
    case 10:
      return is("repeatMode", repeatMode);
    case 11:
      return name[0] == 'e' ? is("elapsedTime", elapsedTime) : is("shuffleMode", shuffleMode);
    case 12:
      return name[0] == 'p' ? is("playbackRate", playbackRate) : is("capabilities", capabilities);
    case 14:
      return is("durationMicros", durationMicros);
    case 16:
      return is("bundleIdentifier", bundleIdentifier);
    case 17:
      return name[0] == 'e' ? is("elapsedTimeMicros", elapsedTimeMicros)
                            : is("processIdentifier", processIdentifier);
    case 20:
      return is("timestampEpochMicros", timestampEpochMicros);
    case 33:
      return is("parentApplicationBundleIdentifier", parentBundleIdentifier);
    default:
      return nullptr;
  }
}

}  // namespace tindra
