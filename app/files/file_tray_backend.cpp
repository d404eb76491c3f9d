#include "files/file_tray_backend.h"

namespace tindra {

std::vector<FileTrayCopyRequest> FileTrayBackend::Null::measure(
    const std::vector<std::string>& paths) const {
  std::vector<FileTrayCopyRequest> unreadable;
  for (const std::string& path : paths) unreadable.push_back({path, -1});
  return unreadable;
}

TrayCopyResult FileTrayBackend::Null::copy(const std::vector<FileTrayCopyRequest>& requests,
                                           const std::filesystem::path&, std::atomic<std::int64_t>&,
                                           const std::atomic<bool>&) const {
  TrayCopyResult result;
  for (const FileTrayCopyRequest& request : requests) result.failed.push_back(request.sourcePath);
  return result;
}

}  // namespace tindra
