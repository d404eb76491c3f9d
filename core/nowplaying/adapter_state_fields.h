// AdapterStateFields: where in the adapter parser's merged state each member a snapshot is built
// from lives. Kept up to date change by change, so building a snapshot after a small diff does
// not walk the whole state. The pointers stay valid as long as the members they point at.
#pragma once

#include <string_view>

#include "base/json_value.h"

namespace tindra {

struct AdapterStateFields {
  JSONValue* title = nullptr;
  JSONValue* playing = nullptr;
  JSONValue* durationMicros = nullptr;
  JSONValue* duration = nullptr;
  JSONValue* elapsedTimeMicros = nullptr;
  JSONValue* elapsedTime = nullptr;
  JSONValue* playbackRate = nullptr;
  JSONValue* bundleIdentifier = nullptr;
  JSONValue* parentBundleIdentifier = nullptr;
  JSONValue* processIdentifier = nullptr;
  JSONValue* artist = nullptr;
  JSONValue* album = nullptr;
  JSONValue* timestampEpochMicros = nullptr;
  JSONValue* timestamp = nullptr;
  JSONValue* shuffleMode = nullptr;
  JSONValue* repeatMode = nullptr;
  JSONValue* capabilities = nullptr;

  // Points every field at its member of `state`, or at nothing.
  void rebuild(JSONValue::Object& state);
  // Follows one change: `value` is the member now stored under `name`, nullptr when removed.
  void update(std::string_view name, JSONValue* value);
  // The member stored under `name` when it is one of the fields and present; saves a map look-up.
  JSONValue* find(std::string_view name);

 private:
  JSONValue** slotFor(std::string_view name);
};

}  // namespace tindra
