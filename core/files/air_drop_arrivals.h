// AirDropArrivals: picks the files AirDrop just delivered out of the watched folder's entries:
// new names, not hidden, not downloads in progress, quarantined by "sharingd" no longer than
// `maxAge` seconds ago.
#pragma once

#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace tindra {

class AirDropArrivals {
 public:
  // An older arrival is a file that was merely moved into the folder.
  static constexpr double maxAge = 120;

  struct Entry {
    std::string name;                       // the name inside the watched folder
    std::optional<std::string> quarantine;  // raw "com.apple.quarantine" value
    friend bool operator==(const Entry&, const Entry&) = default;
  };

  // The names among `entries`, in folder order, that are new AirDrop arrivals at `now` (seconds
  // since 1970); `known` holds the names already seen. An arrival without a readable quarantine
  // time counts: its agent vouches for it, and `known` keeps out what was there before.
  static std::vector<std::string> arrivals(std::span<const Entry> entries,
                                           const std::set<std::string, std::less<>>& known,
                                           double now);
};

}  // namespace tindra
