#include "files/linux/file_identity.h"

#include <sys/stat.h>

#include <charconv>
#include <string_view>

namespace tindra {

namespace {

constexpr std::string_view prefix = "file-identity:";

}  // namespace

std::optional<FileIdentity> FileIdentity::of(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) return std::nullopt;
  return FileIdentity{static_cast<std::uint64_t>(status.st_dev),
                      static_cast<std::uint64_t>(status.st_ino)};
}

std::vector<std::uint8_t> FileIdentity::bookmark() const {
  const std::string text =
      std::string(prefix) + std::to_string(device) + ':' + std::to_string(inode);
  return {text.begin(), text.end()};
}

std::optional<FileIdentity> FileIdentity::fromBookmark(const std::vector<std::uint8_t>& bookmark) {
  const std::string_view text(reinterpret_cast<const char*>(bookmark.data()), bookmark.size());
  if (!text.starts_with(prefix)) return std::nullopt;
  const std::string_view numbers = text.substr(prefix.size());
  FileIdentity identity;
  const char* end = numbers.data() + numbers.size();
  const auto device = std::from_chars(numbers.data(), end, identity.device);
  if (device.ec != std::errc() || device.ptr == end || *device.ptr != ':') return std::nullopt;
  const auto inode = std::from_chars(device.ptr + 1, end, identity.inode);
  if (inode.ec != std::errc() || inode.ptr != end) return std::nullopt;
  return identity;
}

}  // namespace tindra
