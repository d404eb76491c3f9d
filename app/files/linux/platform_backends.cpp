// The file tray on Linux: a POSIX file system.
#include "files/linux/posix_file_tray_backend.h"

namespace tindra {

std::unique_ptr<FileTrayBackend> FileTrayBackend::forPlatform(SharedBackends&) {
  return std::make_unique<PosixFileTrayBackend>();
}

}  // namespace tindra
