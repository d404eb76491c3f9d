// LockSessionRecord: the lock-session guard file "lock-session.json": whether a lock-screen
// session is open and how many restarts in a row happened while one was. Dates are stored as
// JSON numbers of seconds since 1970, written in their shortest exact form so that a record read
// back equals the one written. Only version 1 is readable: a record from a newer format cannot be
// trusted to mean the same thing.
#pragma once

#include <expected>
#include <optional>
#include <string>
#include <string_view>

#include "base/enum_table.h"

namespace tindra {

// One open lock-screen session.
struct LockSessionMarker {
  double startedAt = 0;       // seconds since 1970
  std::string bootSessionID;  // the boot the session began in
  std::string osVersion;      // the system version at that time
  friend bool operator==(const LockSessionMarker&, const LockSessionMarker&) = default;
};

struct LockSessionRecordError {
  enum class Code {
    invalidJSON,       // not JSON text at all (truncated, garbage)
    notAnObject,       // JSON, but not an object
    badVersion,        // "version" missing, not a number, or not 1
    badOpenSession,    // "openSession" neither absent, null, nor a complete marker
    badRestartStrikes  // "restartStrikes" missing or not a whole number from 0 to 2^31 - 1
  };
  Code code;

  // "lock-session record: restartStrikes is missing or invalid", for the log.
  std::string message() const;
  friend bool operator==(const LockSessionRecordError&, const LockSessionRecordError&) = default;
};

template <>
struct EnumTable<LockSessionRecordError::Code> {
  using E = LockSessionRecordError::Code;
  static constexpr std::array cases{
      EnumCase{E::invalidJSON, "invalidJSON"}, EnumCase{E::notAnObject, "notAnObject"},
      EnumCase{E::badVersion, "badVersion"}, EnumCase{E::badOpenSession, "badOpenSession"},
      EnumCase{E::badRestartStrikes, "badRestartStrikes"}};
};

struct LockSessionRecord {
  static constexpr std::string_view fileName = "lock-session.json";
  static constexpr int currentVersion = 1;

  int version = currentVersion;
  std::optional<LockSessionMarker> openSession{};
  int restartStrikes = 0;  // restarts in a row while a session was open

  // Version 1, no session, no strikes.
  static LockSessionRecord fresh() { return LockSessionRecord(); }

  // Indented JSON; "openSession" is left out when no session is open.
  std::string encoded() const;
  // "openSession" may be missing or null; unknown members are ignored.
  static std::expected<LockSessionRecord, LockSessionRecordError> decode(std::string_view bytes);

  friend bool operator==(const LockSessionRecord&, const LockSessionRecord&) = default;
};

}  // namespace tindra
