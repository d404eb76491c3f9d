// FileTrayBackend: the file system as the file tray meets it: what a path names now, kept as the
// item's bookmark so a file moved away or replaced shows as missing instead of opening something
// else; measuring and copying for the copy mode; and opening an item with the desktop's handler.
// `measure` and `copy` run on worker threads: they touch nothing but the file system and what
// they are given, and the provider waits for them before the backend goes.
#pragma once

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "base/backend.h"
#include "files/file_tray_item.h"

namespace tindra {

class SharedBackends;

struct TrayCopy {
  std::string sourcePath;
  std::string copyPath;  // the copy in the copies folder, with the original's name
  std::int64_t bytes = 0;
};

struct TrayCopyResult {
  std::vector<TrayCopy> copied;
  std::vector<std::string> failed;  // source paths that could not be copied
  bool cancelled = false;
};

class FileTrayBackend : public Backend {
  Q_OBJECT

 public:
  class Null;
  // This platform's file system.
  static std::unique_ptr<FileTrayBackend> forPlatform(SharedBackends& shared);

  using Backend::Backend;

  // What `path` names now (links followed) as a bookmark; empty when nothing is there.
  virtual std::vector<std::uint8_t> bookmark(const std::string& path) const = 0;
  // Whether `path` still names what `bookmark` was made from.
  virtual bool stillNames(const std::string& path,
                          const std::vector<std::uint8_t>& bookmark) const = 0;

  // The bytes of each file, or of the regular files inside each folder; -1 for one that cannot
  // be read, which the tray's admission counts as invalid. Any thread.
  virtual std::vector<FileTrayCopyRequest> measure(const std::vector<std::string>& paths) const = 0;
  // Copies the requests in order, each into a folder of its own in `copiesFolder`, adding to
  // `copiedBytes` as it goes and stopping soon after `cancel` is set; the copies already
  // complete are kept, a partial one never is. Any thread.
  virtual TrayCopyResult copy(const std::vector<FileTrayCopyRequest>& requests,
                              const std::filesystem::path& copiesFolder,
                              std::atomic<std::int64_t>& copiedBytes,
                              const std::atomic<bool>& cancel) const = 0;

  // Hands the file to the desktop's handler; false when none took it.
  virtual bool open(const std::string& path) = 0;
};

// No file system the tray may use: nothing names anything, nothing is copied or opened.
class FileTrayBackend::Null final : public NullBackend<FileTrayBackend> {
 public:
  using NullBackend::NullBackend;

  std::vector<std::uint8_t> bookmark(const std::string&) const override { return {}; }
  bool stillNames(const std::string&, const std::vector<std::uint8_t>&) const override {
    return false;
  }
  std::vector<FileTrayCopyRequest> measure(const std::vector<std::string>& paths) const override;
  TrayCopyResult copy(const std::vector<FileTrayCopyRequest>& requests,
                      const std::filesystem::path&, std::atomic<std::int64_t>&,
                      const std::atomic<bool>&) const override;
  bool open(const std::string&) override { return false; }
};

}  // namespace tindra
