// LockSessionPolicy: at launch, before anything is drawn on the lock screen, decides from the
// guard record whether the lock-screen features may stay on, and gives the record to write back.
// One restart while a session was open is forgiven; a second in a row, a stop of Tindra itself
// while locked, or a record it cannot read turns the features off.
//
// Strikes count restarts in a row: opening a session keeps them, and a session that ends cleanly
// resets them to 0, since the lock screen then demonstrably worked. A verdict that disables turns
// off every feature that is on, widgets and notch alike: both draw above the lock screen in the
// same guarded session, so the record cannot tell which of them broke it.
#pragma once

#include <expected>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "lockscreen/lock_screen_feature.h"
#include "lockscreen/lock_screen_notice.h"
#include "lockscreen/lock_session_record.h"

namespace tindra {

struct LockSessionPolicy {
  struct Clean {
    friend bool operator==(const Clean&, const Clean&) = default;
  };
  struct Tolerated {
    int strikes;
    friend bool operator==(const Tolerated&, const Tolerated&) = default;
  };
  struct Disable {
    LockScreenNotice::Reason reason;
    friend bool operator==(const Disable&, const Disable&) = default;
  };
  using LaunchVerdict = std::variant<Clean, Tolerated, Disable>;

  struct Launch {
    LaunchVerdict verdict;
    LockSessionRecord record;  // to write back
    bool recordChanged;        // false when the stored record is kept as it is
    friend bool operator==(const Launch&, const Launch&) = default;
  };

  // Restarts in a row while locked that turn the features off.
  static constexpr int strikeLimit = 2;

  // `storedBytes` is the guard file's content, empty when there is no file.
  static Launch launchVerdict(std::string_view storedBytes, std::string_view bootSessionID);
  // The same from a DurableFile read: ENOENT counts as no file, any other error as unreadable.
  static Launch launchVerdictFromRead(const std::expected<std::string, int>& stored,
                                      std::string_view bootSessionID);

  // The record to write when a session begins: the marker, strikes kept.
  static LockSessionRecord recordForBegin(const LockSessionRecord& current,
                                          LockSessionMarker marker);
  // The record to write when a session ends cleanly: no marker, strikes reset.
  static LockSessionRecord recordForEnd() { return LockSessionRecord::fresh(); }

  // The features `verdict` turns off, of those now on; each gets its notice.
  static std::vector<LockScreenFeature> featuresToTurnOff(const LaunchVerdict& verdict,
                                                          bool widgetsOn, bool notchOn);
};

}  // namespace tindra
