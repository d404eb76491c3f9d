// AdapterStateFields: where in the adapter parser's merged state each member a snapshot is built
// from lives. Kept up to date change by change, so building a snapshot after a small diff does
// not walk the whole state. The pointers stay valid as long as the members they point at.
#pragma once

#include <string_view>

#include "settings/json_value.h"

namespace tindra {

struct AdapterStateFields {
  const JSONValue* title = nullptr;
  const JSONValue* playing = nullptr;
  const JSONValue* durationMicros = nullptr;
  const JSONValue* duration = nullptr;
  const JSONValue* elapsedTimeMicros = nullptr;
  const JSONValue* elapsedTime = nullptr;
  const JSONValue* playbackRate = nullptr;
  const JSONValue* bundleIdentifier = nullptr;
  const JSONValue* parentBundleIdentifier = nullptr;
  const JSONValue* artist = nullptr;
  const JSONValue* album = nullptr;
  const JSONValue* timestampEpochMicros = nullptr;
  const JSONValue* timestamp = nullptr;
  const JSONValue* shuffleMode = nullptr;
  const JSONValue* repeatMode = nullptr;

  // Points every field at its member of `state`, or at nothing.
  void rebuild(const JSONValue::Object& state);
  // Follows one change: `value` is the member now stored under `name`, nullptr when removed.
  void update(std::string_view name, const JSONValue* value);

 private:
  const JSONValue** slotFor(std::string_view name);
};

}  // namespace tindra
