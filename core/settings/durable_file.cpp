#include "settings/durable_file.h"

#include <fcntl.h>

#include <array>
#include <cerrno>
#include <string>
#include <system_error>

#include "base/uuid.h"

namespace tindra {
namespace {

using Step = DurableFile::Failure::Step;

std::string_view stepName(Step step) {
  static constexpr std::array<std::string_view, 5> names{"folder", "open", "write", "flush",
                                                         "rename"};
  return names[static_cast<std::size_t>(step)];
}

std::filesystem::path containingFolder(const std::filesystem::path& url) {
  auto folder = url.parent_path();
  return folder.empty() ? std::filesystem::path(".") : folder;
}

std::filesystem::path temporaryPath(const std::filesystem::path& url) {
  return containingFolder(url) /
         ("." + url.filename().string() + "." + UUID::random().text() + ".tmp");
}

// One save in progress: owns the temporary file until it has been renamed over the target, so
// every failure path closes and deletes it in one place.
class Save {
 public:
  Save(FileSystemCalls& calls, const std::filesystem::path& url)
      : calls_(calls), url_(url), temporary_(temporaryPath(url)) {}
  Save(const Save&) = delete;
  Save& operator=(const Save&) = delete;
  Save(Save&&) = delete;
  Save& operator=(Save&&) = delete;
  ~Save() { discardTemporary(); }

  std::expected<void, DurableFile::Failure> run(std::string_view data) {
    if (calls_.makeFolders(containingFolder(url_).c_str()) != 0) return failure(Step::folder);
    fd_ = calls_.open(temporary_.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (fd_ < 0) return failure(Step::open);
    temporaryExists_ = true;
    if (!writeAll(data)) return failure(Step::write);
    if (!syncToDisk()) return failure(Step::flush);
    // A failing close can report a deferred write error (NFS and some FUSE file systems report
    // them only here), so the bytes may not have reached the disk: that is a failed flush. The
    // descriptor is released either way and must not be closed again.
    const int closed = calls_.close(fd_);
    fd_ = -1;
    if (closed != 0) return failure(Step::flush);
    if (calls_.rename(temporary_.c_str(), url_.c_str()) != 0) return failure(Step::rename);
    temporaryExists_ = false;
    syncFolder();
    return {};
  }

 private:
  // Captures errno before the clean-up calls in the destructor can change it.
  std::unexpected<DurableFile::Failure> failure(Step step) const {
    return std::unexpected(DurableFile::Failure{step, errno});
  }

  bool writeAll(std::string_view data) {
    while (!data.empty()) {
      const ssize_t written = calls_.write(fd_, data.data(), data.size());
      if (written < 0 && errno == EINTR) continue;
      if (written < 0) return false;
      if (written == 0) {  // no progress and no error: give up rather than spin
        errno = EIO;
        return false;
      }
      data.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
  }

  bool syncToDisk() { return calls_.fullSync(fd_) == 0 || calls_.fsync(fd_) == 0; }

  // Makes the rename itself durable; the new content is already in place, so a failure here
  // changes nothing the caller could act on.
  void syncFolder() {
    const int folder = calls_.open(containingFolder(url_).c_str(), O_RDONLY | O_CLOEXEC, 0);
    if (folder < 0) return;
    calls_.fsync(folder);
    calls_.close(folder);
  }

  void discardTemporary() {
    if (fd_ >= 0) calls_.close(fd_);
    if (temporaryExists_) calls_.unlink(temporary_.c_str());
  }

  FileSystemCalls& calls_;
  const std::filesystem::path& url_;
  std::filesystem::path temporary_;
  int fd_ = -1;
  bool temporaryExists_ = false;
};

}  // namespace

std::string DurableFile::Failure::message(const std::filesystem::path& url) const {
  return "could not save " + url.string() + ": " + std::string(stepName(step)) +
         " failed: " + std::generic_category().message(error);
}

DurableFile::DurableFile(std::filesystem::path url, FileSystemCalls& calls)
    : url_(std::move(url)), calls_(&calls) {}

std::expected<std::string, int> DurableFile::read() const {
  const int fd = calls_->open(url_.c_str(), O_RDONLY | O_CLOEXEC, 0);
  if (fd < 0) return std::unexpected(errno);
  std::string content;
  std::array<char, 16384> buffer{};
  while (true) {
    const ssize_t count = calls_->read(fd, buffer.data(), buffer.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) {
      const int error = errno;
      calls_->close(fd);
      return std::unexpected(error);
    }
    if (count == 0) break;
    content.append(buffer.data(), static_cast<std::size_t>(count));
  }
  calls_->close(fd);
  return content;
}

std::expected<void, DurableFile::Failure> DurableFile::write(std::string_view data) const {
  return Save(*calls_, url_).run(data);
}

}  // namespace tindra
