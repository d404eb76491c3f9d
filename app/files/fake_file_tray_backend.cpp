#include "files/fake_file_tray_backend.h"

namespace tindra {

FakeFileTrayBackend::FakeFileTrayBackend(QObject* parent) : FileTrayBackend(parent) {
  setCheck(DiagnosticsLog::Outcome::degraded,
           Sentence(QT_TR_NOOP("invented files (TINDRA_FAKE asks for them)"), tr));
}

void FakeFileTrayBackend::invent(const std::string& path, std::int64_t bytes) {
  files_[path] = {bytes, ++generations_};
}

std::vector<std::uint8_t> FakeFileTrayBackend::bookmark(const std::string& path) const {
  const auto file = files_.find(path);
  if (file == files_.end()) return {};
  const std::string text = "invented:" + std::to_string(file->second.generation);
  return {text.begin(), text.end()};
}

bool FakeFileTrayBackend::stillNames(const std::string& path,
                                     const std::vector<std::uint8_t>& bookmark) const {
  return !bookmark.empty() && this->bookmark(path) == bookmark;
}

std::vector<FileTrayCopyRequest> FakeFileTrayBackend::measure(
    const std::vector<std::string>& paths) const {
  std::vector<FileTrayCopyRequest> measured;
  for (const std::string& path : paths) {
    const auto file = files_.find(path);
    measured.push_back({path, file == files_.end() ? -1 : file->second.bytes});
  }
  return measured;
}

// Invented files have no bytes to copy: each copy fails, as one of an unreadable file would.
TrayCopyResult FakeFileTrayBackend::copy(const std::vector<FileTrayCopyRequest>& requests,
                                         const std::filesystem::path&, std::atomic<std::int64_t>&,
                                         const std::atomic<bool>& cancel) const {
  TrayCopyResult result;
  result.cancelled = cancel;
  for (const FileTrayCopyRequest& request : requests) result.failed.push_back(request.sourcePath);
  return result;
}

bool FakeFileTrayBackend::open(const std::string& path) {
  opened.push_back(path);
  return files_.contains(path);
}

}  // namespace tindra
