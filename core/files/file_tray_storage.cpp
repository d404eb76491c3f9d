#include "files/file_tray_storage.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <string>
#include <system_error>
#include <utility>

#include "files/file_tray_stored_parser.h"

namespace tindra {

namespace fs = std::filesystem;

namespace {

// True when `path` lies below `folder` (not the folder itself); both already canonical.
bool isStrictlyInside(const fs::path& path, const fs::path& folder) {
  const fs::path relative = path.lexically_relative(folder);
  if (relative.empty() || relative == ".") return false;
  return *relative.begin() != "..";
}

bool hasParentStep(const fs::path& path) {
  return std::ranges::any_of(path, [](const fs::path& part) { return part == ".."; });
}

std::optional<double> modifiedAt(const fs::directory_entry& entry) {
  std::error_code error;
  const fs::file_time_type time = entry.last_write_time(error);
  if (error) return std::nullopt;
  const auto since1970 = std::chrono::file_clock::to_sys(time).time_since_epoch();
  return std::chrono::duration<double>(since1970).count();
}

}  // namespace

FileTrayStorage::FileTrayStorage(fs::path dataFolder) : dataFolder_(std::move(dataFolder)) {}

FileTrayStorage::Loaded FileTrayStorage::load() {
  blocked_ = false;
  Loaded loaded;
  std::expected<std::string, int> bytes = DurableFile(listFile()).read();
  if (!bytes) {
    if (bytes.error() == ENOENT) return loaded;
    loaded.problem = Loaded::Problem::unreadable;
    loaded.keptAside = moveAside("unreadable");
    return loaded;
  }
  std::expected<FileTrayStoredParser::Parsed, FileTrayStoredParser::ParseError> parsed =
      FileTrayStoredParser::parse(*bytes);
  if (!parsed) {
    const bool newer = parsed.error().code == FileTrayStoredParser::ParseError::Code::newerVersion;
    loaded.problem = newer ? Loaded::Problem::newerVersion : Loaded::Problem::unreadable;
    loaded.keptAside =
        moveAside(newer ? "version-" + std::to_string(parsed.error().version) : "unreadable");
    return loaded;
  }
  loaded.tray = FileTray(std::move(parsed->stored.items));
  if (parsed->skippedItems > 0) {
    // Keep the original so the dropped items can still be recovered by hand.
    loaded.problem = Loaded::Problem::skippedItems;
    loaded.keptAside = moveAside("damaged");
  }
  return loaded;
}

// Renames the list to "file-tray.json.<reason>", adding "-2", "-3"… to keep earlier ones.
std::optional<fs::path> FileTrayStorage::moveAside(std::string_view reason) {
  const fs::path file = listFile();
  const std::string stem = file.filename().string() + "." + std::string(reason);
  fs::path aside = dataFolder_ / stem;
  std::error_code error;
  for (int attempt = 2; fs::exists(fs::symlink_status(aside, error)); ++attempt) {
    aside = dataFolder_ / (stem + "-" + std::to_string(attempt));
  }
  if (std::rename(file.c_str(), aside.c_str()) != 0) {
    blocked_ = true;
    return std::nullopt;
  }
  return aside;
}

std::expected<void, FileTrayStorage::SaveError> FileTrayStorage::save(const FileTray& tray) const {
  if (blocked_) return std::unexpected(SaveError{SaveError::Code::fileInTheWay});
  std::expected<void, DurableFile::Failure> written =
      DurableFile(listFile()).write(FileTrayStoredParser::write(tray.stored()));
  if (!written) return std::unexpected(SaveError{SaveError::Code::write, written.error()});
  return {};
}

std::expected<void, FileTrayStorage::RemovalError> FileTrayStorage::deleteCopy(
    const FileTrayItem& item) const {
  using Code = RemovalError::Code;
  if (!item.isCopy()) return std::unexpected(RemovalError{Code::notACopy});
  const fs::path path(item.path);
  if (!path.is_absolute()) return std::unexpected(RemovalError{Code::relativePath});
  if (hasParentStep(path)) return std::unexpected(RemovalError{Code::outsideTray});

  // Resolving symbolic links on both sides means a link that leads out of the folder is judged
  // by where it leads.
  std::error_code error;
  const fs::path folder = fs::weakly_canonical(copiesFolder(), error);
  if (error) return std::unexpected(RemovalError{Code::failed, error.value()});
  const fs::path target = fs::weakly_canonical(path, error);
  if (error) return std::unexpected(RemovalError{Code::failed, error.value()});
  if (!isStrictlyInside(target, folder)) return std::unexpected(RemovalError{Code::outsideTray});

  fs::remove_all(target, error);
  if (error) return std::unexpected(RemovalError{Code::failed, error.value()});
  // Copies may sit in a folder of their own; fs::remove only takes a folder that is empty.
  for (fs::path parent = target.parent_path(); isStrictlyInside(parent, folder);
       parent = parent.parent_path()) {
    if (!fs::remove(parent, error)) break;
  }
  return {};
}

bool FileTrayStorage::isCopyName(std::string_view name) {
  return name != "." && name != ".." && !name.starts_with(incomingPrefix);
}

FileTrayStorage::Scan FileTrayStorage::scan(double now) const {
  Scan scan;
  std::error_code error;
  for (fs::directory_iterator it(copiesFolder(), error), end; !error && it != end;
       it.increment(error)) {
    const std::string name = it->path().filename().string();
    if (isCopyName(name)) {
      scan.copies.push_back(name);
    } else if (name.starts_with(incomingPrefix)) {
      const std::optional<double> changed = modifiedAt(*it);
      if (changed && now - *changed > FileTray::staleIncomingAge) {
        scan.staleIncoming.push_back(name);
      }
    }
  }
  return scan;
}

int FileTrayStorage::removeStaleIncoming(double now) const {
  int removed = 0;
  for (const std::string& name : scan(now).staleIncoming) {
    std::error_code error;
    // A name straight from the listing: remove_all deletes a symbolic link, not what it names.
    if (fs::remove_all(copiesFolder() / name, error) > 0 && !error) ++removed;
  }
  return removed;
}

}  // namespace tindra
