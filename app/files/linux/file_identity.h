// FileIdentity: which file a path named when it was dropped: its device and inode, kept as the
// tray item's bookmark. A file moved within its file system keeps them; one deleted, or replaced
// by another file under the same name, does not, so the tray shows it as missing rather than
// opening something else.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tindra {

struct FileIdentity {
  std::uint64_t device = 0;
  std::uint64_t inode = 0;

  // The identity of what `path` names now (symbolic links followed); none when it is gone.
  static std::optional<FileIdentity> of(const std::string& path);
  // "file-identity:<device>:<inode>", the bytes stored as the bookmark.
  std::vector<std::uint8_t> bookmark() const;
  static std::optional<FileIdentity> fromBookmark(const std::vector<std::uint8_t>& bookmark);

  friend bool operator==(const FileIdentity&, const FileIdentity&) = default;
};

}  // namespace tindra
