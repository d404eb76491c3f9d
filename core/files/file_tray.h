// FileTray: the items dropped on the notch, oldest first, and the rules that admit new ones: at
// most `capacity` items, copies together at most `copyStoreLimit` bytes, no file held twice.
// Refusals are counted file by file and never affect the other files of the same drop.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "base/uuid.h"
#include "files/file_tray_item.h"

namespace tindra {

class FileTray {
 public:
  static constexpr int capacity = 20;
  // Decimal on purpose: the settings text promises "2 GB".
  static constexpr std::int64_t copyStoreLimit = 2'000'000'000;
  static constexpr std::size_t largestBookmark = 65'536;
  // Seconds after its last change that an ".incoming" entry in the copies folder counts as the
  // leftover of an interrupted copy rather than one still being written (FileTrayFolder::scan).
  static constexpr double staleIncomingAge = 120;

  struct AddResult {
    std::vector<FileTrayItem> added;
    int duplicates = 0;
    int refusedForCapacity = 0;
    int refusedForStoreLimit = 0;
    int invalid = 0;
    friend bool operator==(const AddResult&, const AddResult&) = default;
  };

  struct CopyAdmission {
    std::vector<FileTrayCopyRequest> accepted;
    int duplicates = 0;
    int refusedForCapacity = 0;
    int refusedForStoreLimit = 0;
    int invalid = 0;
    friend bool operator==(const CopyAdmission&, const CopyAdmission&) = default;
  };

  // The saved form; FileTrayStoredParser reads and writes it as JSON.
  struct Stored {
    static constexpr int currentVersion = 1;
    int version = currentVersion;
    std::vector<FileTrayItem> items;
    friend bool operator==(const Stored&, const Stored&) = default;
  };

  FileTray() = default;
  explicit FileTray(std::vector<FileTrayItem> items) : items_(std::move(items)) {}

  const std::vector<FileTrayItem>& items() const { return items_; }
  Stored stored() const { return Stored{Stored::currentVersion, items_}; }

  // Admits the candidates in drop order, appending each admitted one with a fresh id and
  // `addedAt` = now (seconds since 1970).
  AddResult add(std::span<const FileTrayCandidate> candidates, double now);

  // Which measured files copy mode may copy, given the items held and the copies under way.
  CopyAdmission admitCopies(std::span<const FileTrayCopyRequest> requests,
                            std::span<const FileTrayCopyRequest> pending) const;

  // The bytes held as copies, saturating at the largest 64-bit value.
  std::int64_t copiedBytes() const;

  // Takes the item out of the tray and returns it (to delete its copy); nullopt when unknown.
  std::optional<FileTrayItem> remove(const UUID& id);

  // Whether `candidate` breaks the admission rules whatever the tray holds (bad bookmark,
  // relative path, half a copy).
  static bool isInvalid(const FileTrayCandidate& candidate);

 private:
  std::vector<FileTrayItem> items_;
};

}  // namespace tindra
