#include "settings/file_system_calls.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace tindra {

int FileSystemCalls::open(const char* path, int flags, mode_t mode) {
  return ::open(path, flags, mode);  // NOLINT(cppcoreguidelines-pro-type-vararg)
}

ssize_t FileSystemCalls::read(int fd, void* bytes, std::size_t count) {
  return ::read(fd, bytes, count);
}

ssize_t FileSystemCalls::write(int fd, const void* bytes, std::size_t count) {
  return ::write(fd, bytes, count);
}

int FileSystemCalls::fullSync(int fd) {
#ifdef F_FULLFSYNC
  // fsync alone lets the drive keep the bytes in its volatile cache on macOS.
  return ::fcntl(fd, F_FULLFSYNC);  // NOLINT(cppcoreguidelines-pro-type-vararg)
#else
  (void)fd;
  errno = ENOTSUP;
  return -1;
#endif
}

int FileSystemCalls::fsync(int fd) {
  return ::fsync(fd);
}

int FileSystemCalls::close(int fd) {
  return ::close(fd);
}

int FileSystemCalls::rename(const char* from, const char* to) {
  return ::rename(from, to);
}

int FileSystemCalls::access(const char* path, int mode) {
  return ::access(path, mode);
}

int FileSystemCalls::unlink(const char* path) {
  return ::unlink(path);
}

int FileSystemCalls::makeFolders(const char* path) {
  std::error_code error;
  std::filesystem::create_directories(path, error);
  if (!error) return 0;
  errno = error.value();
  return -1;
}

FileSystemCalls& FileSystemCalls::system() {
  static FileSystemCalls calls;
  return calls;
}

}  // namespace tindra
