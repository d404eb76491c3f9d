// FileSystemCalls: the handful of POSIX calls DurableFile and SettingsStore make, behind one
// interface so that a test can fail any one of them. Each returns what the POSIX call returns and
// leaves errno set.
#pragma once

#include <sys/types.h>

#include <cstddef>

namespace tindra {

class FileSystemCalls {
 public:
  virtual ~FileSystemCalls() = default;

  virtual int open(const char* path, int flags, mode_t mode);
  virtual ssize_t read(int fd, void* bytes, std::size_t count);
  virtual ssize_t write(int fd, const void* bytes, std::size_t count);
  virtual int fullSync(int fd);  // F_FULLFSYNC where the platform has it; -1 with ENOTSUP elsewhere
  virtual int fsync(int fd);
  virtual int close(int fd);
  virtual int rename(const char* from, const char* to);
  virtual int unlink(const char* path);
  virtual int makeFolders(const char* path);  // like `mkdir -p`: 0, or -1 with errno
  virtual int access(const char* path, int mode);

  // The process-wide instance that makes the real calls.
  static FileSystemCalls& system();
};

}  // namespace tindra
