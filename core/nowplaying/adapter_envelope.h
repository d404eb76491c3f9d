// AdapterEnvelope: one adapter line taken apart into what the parser checks first (the "type"
// text, the "diff" flag) and the members of its "payload" object. The everyday line is read
// straight from its text without building a tree; anything unusual goes through JSONReader, and
// both ways give the same envelope.
#pragma once

#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

#include "base/json_value.h"

namespace tindra {

struct AdapterEnvelope {
  using Member = std::pair<std::string_view, JSONValue>;

  bool typeIsString = false;
  std::string_view type;  // the "type" text when it is a string
  bool diff = false;      // "diff" is the boolean true
  bool payloadIsObject = false;
  std::vector<Member> payload;  // the payload's members, each name once
  JSONValue tree;  // when read by JSONReader: owns the texts `type` and the names point into

  // The payload member `name`, or nullptr.
  JSONValue* member(std::string_view name);
};

// Fills `envelope` from `line` when the line is an object whose members are strings, numbers,
// true, false or null, except "payload", which may be an object of at most 64 such members;
// with no escapes, no bytes above 0x7F, and no repeated "type", "diff", "payload" or payload
// member. False means: ask JSONReader.
bool scanPlainAdapterEnvelope(std::string_view line, AdapterEnvelope& envelope);

// Fills `envelope` from a value JSONReader read; false when it is not an object.
bool takeAdapterEnvelope(JSONValue tree, AdapterEnvelope& envelope);

}  // namespace tindra
