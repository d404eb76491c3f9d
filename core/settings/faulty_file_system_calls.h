// FaultyCalls: for tests, the real file system calls except the ones told to fail, each call
// logged and open descriptors tracked, so that every step of a save can be made to fail.
#pragma once

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "settings/file_system_calls.h"

namespace tindra {

class FaultyCalls : public FileSystemCalls {
 public:
  enum class Call { makeFolders, open, write, fullSync, fsync, close, rename, access };
  // Fails the `nth` call (counting from 1) of `call` with `error`.
  void fail(Call call, int error, int nth = 1) { faults_[{call, nth}] = error; }

  std::vector<std::string> log;  // "write", "open <path>", ...
  std::size_t maxWriteSize = SIZE_MAX;
  int interruptedWrites = 0;  // how many writes fail with EINTR first
  bool hasFullSync = false;   // pretend F_FULLFSYNC exists and works
  std::set<int> openDescriptors;

  int open(const char* path, int flags, mode_t mode) override {
    if (failed(Call::open, std::string("open ") + path)) return -1;
    const int fd = FileSystemCalls::open(path, flags, mode);
    openDescriptors.insert(fd);
    return fd;
  }
  ssize_t write(int fd, const void* bytes, std::size_t count) override {
    if (failed(Call::write, "write")) return -1;
    if (interruptedWrites-- > 0) return errno = EINTR, -1;
    return FileSystemCalls::write(fd, bytes, std::min(count, maxWriteSize));
  }
  int fullSync(int fd) override {
    if (failed(Call::fullSync, "fullSync")) return -1;
    return hasFullSync ? 0 : FileSystemCalls::fullSync(fd);
  }
  int fsync(int fd) override {
    return failed(Call::fsync, "fsync") ? -1 : FileSystemCalls::fsync(fd);
  }
  int close(int fd) override {
    openDescriptors.erase(fd);
    const int result = FileSystemCalls::close(fd);  // released even when the close fails
    return failed(Call::close, "close") ? -1 : result;
  }
  int rename(const char* from, const char* to) override {
    return failed(Call::rename, std::string("rename ") + to) ? -1
                                                             : FileSystemCalls::rename(from, to);
  }
  int access(const char* path, int mode) override {
    return failed(Call::access, std::string("access ") + path)
               ? -1
               : FileSystemCalls::access(path, mode);
  }
  int makeFolders(const char* path) override {
    if (failed(Call::makeFolders, std::string("makeFolders ") + path)) return -1;
    return FileSystemCalls::makeFolders(path);
  }

 private:
  bool failed(Call call, std::string entry) {
    log.push_back(std::move(entry));
    const auto fault = faults_.find({call, ++counts_[call]});
    if (fault != faults_.end()) errno = fault->second;
    return fault != faults_.end();
  }

  std::map<std::pair<Call, int>, int> faults_;
  std::map<Call, int> counts_;
};

}  // namespace tindra
