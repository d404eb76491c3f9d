// The file tray's values: a held item, a dropped candidate before admission, a file that copy
// mode wants to copy, and the progress of a running copy. Plain values; FileTray holds the rules.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/uuid.h"

namespace tindra {

// An item held by the tray. A copy (the tray's own copy of a file) has `copiedBytes` and
// `sourcePath`; a link (a reference to the file where it lies) has neither.
struct FileTrayItem {
  UUID id;
  std::vector<std::uint8_t> bookmark;  // finds the file again after it moved
  bool isSecurityScoped = false;
  std::string displayName;
  std::string path;  // absolute; for a copy, the path of the tray's copy
  std::optional<std::string> contentType;
  double addedAt = 0;  // seconds since 1970
  std::optional<std::int64_t> copiedBytes;
  std::optional<std::string> sourcePath;  // for a copy, the file that was copied

  bool isCopy() const { return copiedBytes.has_value(); }
  friend bool operator==(const FileTrayItem&, const FileTrayItem&) = default;
};

// A dropped file or folder before admission: an item without `id` and `addedAt`.
struct FileTrayCandidate {
  std::vector<std::uint8_t> bookmark;
  bool isSecurityScoped = false;
  std::string displayName;
  std::string path;
  std::optional<std::string> contentType;
  std::optional<std::int64_t> copiedBytes;
  std::optional<std::string> sourcePath;

  friend bool operator==(const FileTrayCandidate&, const FileTrayCandidate&) = default;
};

// One file copy mode wants to copy, measured before copying.
struct FileTrayCopyRequest {
  std::string sourcePath;
  std::int64_t byteCount = 0;

  friend bool operator==(const FileTrayCopyRequest&, const FileTrayCopyRequest&) = default;
};

// Progress of a running copy into the tray.
struct FileTrayCopyProgress {
  int itemCount = 0;
  std::int64_t totalBytes = 0;
  std::int64_t copiedBytes = 0;

  friend bool operator==(const FileTrayCopyProgress&, const FileTrayCopyProgress&) = default;
};

}  // namespace tindra
