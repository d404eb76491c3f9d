// PosixFileTrayBackend: the tray on a POSIX file system: a file's device and inode are its
// bookmark (FileIdentity), copies are made by FileTrayCopier's functions, and items open with
// the desktop's handler for file URLs (xdg-open's choice, through Qt).
#pragma once

#include <functional>

#include "files/file_tray_backend.h"

namespace tindra {

class PosixFileTrayBackend final : public FileTrayBackend {
  Q_OBJECT

 public:
  using Opener = std::function<bool(const std::string& path)>;
  // The desktop's handler for file URLs.
  static bool openWithDesktop(const std::string& path);

  explicit PosixFileTrayBackend(Opener open = openWithDesktop, QObject* parent = nullptr);

  void start() override {}
  std::vector<std::uint8_t> bookmark(const std::string& path) const override;
  bool stillNames(const std::string& path,
                  const std::vector<std::uint8_t>& bookmark) const override;
  std::vector<FileTrayCopyRequest> measure(const std::vector<std::string>& paths) const override;
  TrayCopyResult copy(const std::vector<FileTrayCopyRequest>& requests,
                      const std::filesystem::path& copiesFolder,
                      std::atomic<std::int64_t>& copiedBytes,
                      const std::atomic<bool>& cancel) const override;
  bool open(const std::string& path) override { return open_(path); }

 private:
  Opener open_;
};

}  // namespace tindra
