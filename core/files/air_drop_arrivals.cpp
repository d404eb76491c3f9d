#include "files/air_drop_arrivals.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/text_case.h"
#include "files/quarantine_info.h"

namespace tindra {

namespace {

bool isDownloadInProgress(std::string_view name) {
  static constexpr std::array<std::string_view, 3> suffixes{".download", ".part", ".crdownload"};
  const std::string lower = lowercased(name);
  return std::ranges::any_of(suffixes,
                             [&](std::string_view suffix) { return lower.ends_with(suffix); });
}

}  // namespace

std::vector<std::string> AirDropArrivals::arrivals(std::span<const Entry> entries,
                                                   const std::set<std::string, std::less<>>& known,
                                                   double now) {
  std::vector<std::string> names;
  for (const Entry& entry : entries) {
    if (known.contains(entry.name) || entry.name.starts_with('.')) continue;
    if (isDownloadInProgress(entry.name) || !entry.quarantine) continue;
    const std::optional<QuarantineInfo> info = QuarantineInfo::parse(*entry.quarantine);
    if (!info || info->agent != "sharingd") continue;
    if (info->date && now - *info->date > maxAge) continue;
    names.push_back(entry.name);
  }
  return names;
}

}  // namespace tindra
