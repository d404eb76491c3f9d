// FileTrayStorage: where the tray lives on disk, inside one data folder: the saved list
// "file-tray.json" (written only through DurableFile) and the folder "file-tray" holding the
// tray's copies. A saved list that cannot be read, was written by a newer version or had items
// dropped is moved aside before anything is saved, so it is never overwritten. Deleting a copy
// touches nothing outside the copies folder, whatever the stored path says.
#pragma once

#include <expected>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/enum_table.h"
#include "files/file_tray.h"
#include "settings/durable_file.h"

namespace tindra {

class FileTrayStorage {
 public:
  static constexpr std::string_view listName = "file-tray.json";
  static constexpr std::string_view copiesFolderName = "file-tray";
  // Copies still being written carry names beginning with this.
  static constexpr std::string_view incomingPrefix = ".incoming";

  struct Loaded {
    enum class Problem {
      unreadable,    // the file could not be read, or is not a saved tray
      newerVersion,  // written by a newer version of Tindra
      skippedItems,  // some items were malformed and left out
    };
    FileTray tray;
    std::optional<Problem> problem;
    std::optional<std::filesystem::path> keptAside;  // where the original file now is
  };

  struct SaveError {
    enum class Code {
      fileInTheWay,  // an unreadable or newer list could not be moved aside
      write,         // DurableFile failed; see `failure`
    };
    Code code;
    DurableFile::Failure failure{};
    friend bool operator==(const SaveError&, const SaveError&) = default;
  };

  struct RemovalError {
    enum class Code {
      notACopy,      // a link item: the tray owns nothing to delete
      relativePath,  // the stored path is not absolute
      outsideTray,   // the path leaves the copies folder (by "..", a symbolic link or outright)
      failed,        // the file system refused; see `error`
    };
    Code code;
    int error = 0;  // errno for `failed`
    friend bool operator==(const RemovalError&, const RemovalError&) = default;
  };

  struct Scan {
    std::vector<std::string> copies;         // finished copies, by name
    std::vector<std::string> staleIncoming;  // leftovers of interrupted copies
  };

  explicit FileTrayStorage(std::filesystem::path dataFolder);

  std::filesystem::path listFile() const { return dataFolder_ / listName; }
  std::filesystem::path copiesFolder() const { return dataFolder_ / copiesFolderName; }

  // Reads the saved list (none saved: an empty tray), moving a bad file aside.
  Loaded load();
  // Saves the tray; refuses while a bad file could not be moved aside.
  std::expected<void, SaveError> save(const FileTray& tray) const;

  // Deletes the tray's copy of a removed item (and folders left empty above it, up to the copies
  // folder); a copy already gone is not an error.
  std::expected<void, RemovalError> deleteCopy(const FileTrayItem& item) const;

  // The entries of the copies folder; ".incoming" entries unchanged for more than
  // FileTray::staleIncomingAge seconds before `now` (seconds since 1970) count as stale.
  Scan scan(double now) const;
  // Deletes the stale ".incoming" entries `scan(now)` finds; returns how many went.
  int removeStaleIncoming(double now) const;

  // Whether a name in the copies folder is a finished copy (not ".", ".." or ".incoming…").
  static bool isCopyName(std::string_view name);

 private:
  std::optional<std::filesystem::path> moveAside(std::string_view reason);

  std::filesystem::path dataFolder_;
  bool blocked_ = false;  // a bad list is still in place: saving would overwrite it
};

template <>
struct EnumTable<FileTrayStorage::SaveError::Code> {
  using E = FileTrayStorage::SaveError::Code;
  static constexpr std::array cases{EnumCase{E::fileInTheWay, "fileInTheWay"},
                                    EnumCase{E::write, "write"}};
};

template <>
struct EnumTable<FileTrayStorage::Loaded::Problem> {
  using E = FileTrayStorage::Loaded::Problem;
  static constexpr std::array cases{EnumCase{E::unreadable, "unreadable"},
                                    EnumCase{E::newerVersion, "newerVersion"},
                                    EnumCase{E::skippedItems, "skippedItems"}};
};

}  // namespace tindra
