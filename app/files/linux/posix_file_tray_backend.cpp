#include "files/linux/posix_file_tray_backend.h"

#include <QDesktopServices>
#include <QUrl>

#include "files/linux/file_identity.h"
#include "files/linux/file_tray_copier.h"

namespace tindra {

PosixFileTrayBackend::PosixFileTrayBackend(Opener open, QObject* parent)
    : FileTrayBackend(parent), open_(std::move(open)) {
  setCheck(DiagnosticsLog::Outcome::ok,
           Sentence(QT_TR_NOOP("files are known by their device and inode"), tr));
}

std::vector<std::uint8_t> PosixFileTrayBackend::bookmark(const std::string& path) const {
  const std::optional<FileIdentity> identity = FileIdentity::of(path);
  return identity ? identity->bookmark() : std::vector<std::uint8_t>{};
}

bool PosixFileTrayBackend::stillNames(const std::string& path,
                                      const std::vector<std::uint8_t>& bookmark) const {
  const std::optional<FileIdentity> now = FileIdentity::of(path);
  return now && now == FileIdentity::fromBookmark(bookmark);
}

std::vector<FileTrayCopyRequest> PosixFileTrayBackend::measure(
    const std::vector<std::string>& paths) const {
  return measureForTray(paths);
}

TrayCopyResult PosixFileTrayBackend::copy(const std::vector<FileTrayCopyRequest>& requests,
                                          const std::filesystem::path& copiesFolder,
                                          std::atomic<std::int64_t>& copiedBytes,
                                          const std::atomic<bool>& cancel) const {
  return copyIntoTray(requests, copiesFolder, copiedBytes, cancel);
}

bool PosixFileTrayBackend::openWithDesktop(const std::string& path) {
  return QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(path)));
}

}  // namespace tindra
