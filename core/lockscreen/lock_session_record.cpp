#include "lockscreen/lock_session_record.h"

#include <cmath>
#include <limits>

#include "base/json_reader.h"
#include "base/json_writer.h"

namespace tindra {

namespace {

using Code = LockSessionRecordError::Code;

const std::string* stringMember(const JSONValue& object, std::string_view name) {
  const JSONValue* member = object.find(name);
  return member ? member->asString() : nullptr;
}

const double* numberMember(const JSONValue& object, std::string_view name) {
  const JSONValue* member = object.find(name);
  return member ? member->asNumber() : nullptr;
}

std::optional<int> wholeNumber(const double* number, double lowest, double highest) {
  if (!number || *number < lowest || *number > highest || std::trunc(*number) != *number) {
    return std::nullopt;
  }
  return static_cast<int>(*number);
}

std::optional<LockSessionMarker> decodedMarker(const JSONValue& value) {
  const double* startedAt = numberMember(value, "startedAt");
  const std::string* bootSessionID = stringMember(value, "bootSessionID");
  const std::string* osVersion = stringMember(value, "osVersion");
  if (!startedAt || !bootSessionID || !osVersion) return std::nullopt;
  return LockSessionMarker{*startedAt, *bootSessionID, *osVersion};
}

}  // namespace

std::string LockSessionRecordError::message() const {
  switch (code) {
    case Code::invalidJSON:
      return "lock-session record: not JSON";
    case Code::notAnObject:
      return "lock-session record: not a JSON object";
    case Code::badVersion:
      return "lock-session record: version is missing or unsupported";
    case Code::badOpenSession:
      return "lock-session record: openSession is invalid";
    case Code::badRestartStrikes:
      return "lock-session record: restartStrikes is missing or invalid";
  }
  return "lock-session record: invalid";
}

std::string LockSessionRecord::encoded() const {
  JSONValue::Object object{{"version", version}, {"restartStrikes", restartStrikes}};
  if (openSession) {
    object.emplace("openSession", JSONValue::Object{{"startedAt", openSession->startedAt},
                                                    {"bootSessionID", openSession->bootSessionID},
                                                    {"osVersion", openSession->osVersion}});
  }
  return JSONWriter::writePretty(JSONValue(std::move(object)));
}

std::expected<LockSessionRecord, LockSessionRecordError> LockSessionRecord::decode(
    std::string_view bytes) {
  const auto json = JSONReader::parse(bytes);
  if (!json) return std::unexpected(LockSessionRecordError{Code::invalidJSON});
  if (!json->asObject()) return std::unexpected(LockSessionRecordError{Code::notAnObject});

  LockSessionRecord record;
  if (wholeNumber(numberMember(*json, "version"), currentVersion, currentVersion) !=
      currentVersion) {
    return std::unexpected(LockSessionRecordError{Code::badVersion});
  }
  const std::optional<int> strikes =
      wholeNumber(numberMember(*json, "restartStrikes"), 0, std::numeric_limits<int>::max());
  if (!strikes) return std::unexpected(LockSessionRecordError{Code::badRestartStrikes});
  record.restartStrikes = *strikes;

  const JSONValue* session = json->find("openSession");
  if (session && !session->isNull()) {
    record.openSession = decodedMarker(*session);
    if (!record.openSession) return std::unexpected(LockSessionRecordError{Code::badOpenSession});
  }
  return record;
}

}  // namespace tindra
