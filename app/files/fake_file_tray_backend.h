// FakeFileTrayBackend: an invented file system for tests and TINDRA_FAKE=files: files exist only
// as `invent` made them, a file replaced under its name is a new file, no copy can be made of
// one, and opening is recorded instead of starting an application.
#pragma once

#include <map>

#include "files/file_tray_backend.h"

namespace tindra {

class FakeFileTrayBackend final : public FileTrayBackend {
  Q_OBJECT

 public:
  explicit FakeFileTrayBackend(QObject* parent = nullptr);

  // A file of `bytes` at `path`, a new one each time (the old one's bookmark no longer names it).
  void invent(const std::string& path, std::int64_t bytes);
  void vanish(const std::string& path) { files_.erase(path); }

  void start() override {}
  std::vector<std::uint8_t> bookmark(const std::string& path) const override;
  bool stillNames(const std::string& path,
                  const std::vector<std::uint8_t>& bookmark) const override;
  std::vector<FileTrayCopyRequest> measure(const std::vector<std::string>& paths) const override;
  TrayCopyResult copy(const std::vector<FileTrayCopyRequest>& requests,
                      const std::filesystem::path& copiesFolder,
                      std::atomic<std::int64_t>& copiedBytes,
                      const std::atomic<bool>& cancel) const override;
  bool open(const std::string& path) override;

  std::vector<std::string> opened;

 private:
  struct File {
    std::int64_t bytes = 0;
    int generation = 0;
  };
  std::map<std::string, File> files_;
  int generations_ = 0;
};

}  // namespace tindra
