// DurableFile: saves a whole file so that a crash or power loss leaves either the old or the new
// content, never a torn one. The save writes a dot-named temporary file beside the target,
// syncs it, renames it over the target and syncs the folder. Every failure removes the temporary
// file, leaves the target as it was and carries the errno of the failing call.
#pragma once

#include <expected>
#include <filesystem>
#include <string>
#include <string_view>

#include "base/enum_table.h"
#include "settings/file_system_calls.h"

namespace tindra {

class DurableFile {
 public:
  struct Failure {
    enum class Step {
      folder,  // the containing folder could not be created
      open,    // the temporary file could not be created
      write,   // writing the bytes failed
      flush,   // forcing the bytes to the disk (or closing the file) failed
      rename,  // moving the temporary file over the target failed
    };
    Step step;
    int error;  // errno of the failing call

    // "could not save <path>: rename failed: No such file or directory"
    std::string message(const std::filesystem::path& url) const;
    friend bool operator==(const Failure&, const Failure&) = default;
  };

  // `calls` must outlive the DurableFile; tests pass a fault-injecting one.
  explicit DurableFile(std::filesystem::path url,
                       FileSystemCalls& calls = FileSystemCalls::system());

  const std::filesystem::path& url() const { return url_; }

  // The whole file; the errno of the failing call otherwise (ENOENT for a missing file).
  std::expected<std::string, int> read() const;

  // The atomic save described above.
  std::expected<void, Failure> write(std::string_view data) const;

 private:
  std::filesystem::path url_;
  FileSystemCalls* calls_;
};

template <>
struct EnumTable<DurableFile::Failure::Step> {
  using E = DurableFile::Failure::Step;
  static constexpr std::array cases{EnumCase{E::folder, "folder"}, EnumCase{E::open, "open"},
                                    EnumCase{E::write, "write"}, EnumCase{E::flush, "flush"},
                                    EnumCase{E::rename, "rename"}};
};

}  // namespace tindra
