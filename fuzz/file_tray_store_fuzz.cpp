// The saved tray list is a file on disk that anyone with the user's rights can edit. Whatever it
// holds, the reader must not crash, must only let through items the tray could have admitted,
// and what it reads must survive a save and a second read unchanged.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <set>
#include <string_view>

#include "base/json_reader.h"
#include "files/file_tray.h"
#include "files/file_tray_stored_parser.h"

namespace {

void check(bool condition) {
  if (!condition) std::abort();
}

void checkItem(const tindra::FileTrayItem& item) {
  check(!item.bookmark.empty() && item.bookmark.size() <= tindra::FileTray::largestBookmark);
  check(item.path.starts_with('/'));
  check(item.copiedBytes.has_value() == item.sourcePath.has_value());
  if (item.copiedBytes) check(*item.copiedBytes >= 0 && item.sourcePath->starts_with('/'));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const auto parsed = tindra::FileTrayStoredParser::parse(text);
  if (!parsed) return 0;

  const auto document = tindra::JSONReader::parse(text);
  check(document.has_value());
  const std::size_t listed = document->find("items")->asArray()->size();
  check(parsed->stored.items.size() + static_cast<std::size_t>(parsed->skippedItems) == listed);
  check(parsed->stored.version == tindra::FileTray::Stored::currentVersion);

  std::set<tindra::UUID> ids;
  for (const tindra::FileTrayItem& item : parsed->stored.items) {
    checkItem(item);
    check(ids.insert(item.id).second);
  }

  const auto again =
      tindra::FileTrayStoredParser::parse(tindra::FileTrayStoredParser::write(parsed->stored));
  check(again.has_value() && again->skippedItems == 0 && again->stored == parsed->stored);
  return 0;
}
