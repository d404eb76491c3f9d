#include "files/linux/file_tray_copier.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <system_error>

#include "base/uuid.h"
#include "files/file_tray_storage.h"

namespace tindra {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t chunk = 1 << 20;

std::int64_t sizeOf(const fs::path& path) {
  std::error_code error;
  const fs::file_status status = fs::symlink_status(path, error);
  if (error) return -1;
  if (fs::is_regular_file(status)) {
    const auto size = fs::file_size(path, error);
    return error ? -1 : static_cast<std::int64_t>(size);
  }
  if (!fs::is_directory(status)) return 0;  // a link or a special file counts nothing
  std::int64_t total = 0;
  for (auto entry = fs::recursive_directory_iterator(path, error);
       !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
    if (entry->is_regular_file(error) && !entry->is_symlink(error)) {
      total += static_cast<std::int64_t>(entry->file_size(error));
    }
  }
  return error ? -1 : total;
}

class Copier {
 public:
  Copier(std::atomic<std::int64_t>& copiedBytes, const std::atomic<bool>& cancel)
      : copiedBytes_(copiedBytes), cancel_(cancel) {}

  // False when cancelled or when something could not be copied.
  bool copy(const fs::path& from, const fs::path& to) {
    std::error_code error;
    const fs::file_status status = fs::symlink_status(from, error);
    if (error) return false;
    if (fs::is_symlink(status)) {
      fs::copy_symlink(from, to, error);
      return !error;
    }
    if (fs::is_directory(status)) {
      if (!fs::create_directory(to, error)) return false;
      for (const fs::directory_entry& entry : fs::directory_iterator(from, error)) {
        if (!copy(entry.path(), to / entry.path().filename())) return false;
      }
      return !error;
    }
    if (!fs::is_regular_file(status)) return true;  // sockets and devices stay behind
    return copyFile(from, to);
  }

 private:
  bool copyFile(const fs::path& from, const fs::path& to) {
    const int in = ::open(from.c_str(), O_RDONLY | O_CLOEXEC);
    if (in < 0) return false;
    const int out = ::open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    bool ok = out >= 0;
    std::vector<char> buffer(chunk);
    while (ok && !cancel_.load(std::memory_order_relaxed)) {
      const ssize_t read = ::read(in, buffer.data(), buffer.size());
      if (read == 0) break;
      ok = read > 0 && writeAll(out, buffer.data(), static_cast<std::size_t>(read));
      if (ok) copiedBytes_.fetch_add(read, std::memory_order_relaxed);
    }
    ok = ok && !cancel_.load(std::memory_order_relaxed);
    if (out >= 0 && ::close(out) != 0) ok = false;
    ::close(in);
    return ok;
  }

  static bool writeAll(int fd, const char* data, std::size_t size) {
    while (size > 0) {
      const ssize_t written = ::write(fd, data, size);
      if (written <= 0) return false;
      data += written;
      size -= static_cast<std::size_t>(written);
    }
    return true;
  }

  std::atomic<std::int64_t>& copiedBytes_;
  const std::atomic<bool>& cancel_;
};

}  // namespace

std::vector<FileTrayCopyRequest> measureForTray(const std::vector<std::string>& paths) {
  std::vector<FileTrayCopyRequest> requests;
  for (const std::string& path : paths) requests.push_back({path, sizeOf(path)});
  return requests;
}

TrayCopyResult copyIntoTray(const std::vector<FileTrayCopyRequest>& requests,
                            const fs::path& copiesFolder, std::atomic<std::int64_t>& copiedBytes,
                            const std::atomic<bool>& cancel) {
  TrayCopyResult result;
  std::error_code error;
  fs::create_directories(copiesFolder, error);
  Copier copier(copiedBytes, cancel);
  for (const FileTrayCopyRequest& request : requests) {
    if (cancel.load()) {
      result.cancelled = true;
      break;
    }
    const std::string id = UUID::random().text();
    const fs::path incoming =
        copiesFolder / (std::string(FileTrayStorage::incomingPrefix) + "-" + id);
    const fs::path name = fs::path(request.sourcePath).filename();
    const bool copied =
        fs::create_directory(incoming, error) && copier.copy(request.sourcePath, incoming / name);
    if (copied) fs::rename(incoming, copiesFolder / id, error);
    if (!copied || error) {
      fs::remove_all(incoming, error);
      if (cancel.load()) {
        result.cancelled = true;
        break;
      }
      result.failed.push_back(request.sourcePath);
      continue;
    }
    result.copied.push_back(
        {request.sourcePath, (copiesFolder / id / name).string(), request.byteCount});
  }
  return result;
}

}  // namespace tindra
