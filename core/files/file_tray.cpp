#include "files/file_tray.h"

#include <algorithm>
#include <limits>
#include <set>
#include <string>
#include <string_view>

namespace tindra {

namespace {

using PathSet = std::set<std::string, std::less<>>;

bool isAbsolute(std::string_view path) {
  return path.starts_with('/');
}

std::int64_t saturatingAdd(std::int64_t total, std::int64_t amount) {
  if (amount <= 0) return total;
  constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
  return total > largest - amount ? largest : total + amount;
}

// Room left in the copy store; negative when the store already holds more than the limit.
std::int64_t roomLeft(std::int64_t bytesHeld) {
  return FileTray::copyStoreLimit - bytesHeld;
}

// A copy is known by the file it was copied from, a link by where it lies.
PathSet knownPaths(std::span<const FileTrayItem> items) {
  PathSet known;
  for (const FileTrayItem& item : items) known.insert(item.sourcePath.value_or(item.path));
  return known;
}

}  // namespace

bool FileTray::isInvalid(const FileTrayCandidate& candidate) {
  if (candidate.bookmark.empty() || candidate.bookmark.size() > largestBookmark) return true;
  if (!isAbsolute(candidate.path)) return true;
  if (!candidate.copiedBytes) return candidate.sourcePath.has_value();
  return !candidate.sourcePath || !isAbsolute(*candidate.sourcePath) || *candidate.copiedBytes < 0;
}

FileTray::AddResult FileTray::add(std::span<const FileTrayCandidate> candidates, double now) {
  AddResult result;
  PathSet known = knownPaths(items_);
  std::int64_t bytesHeld = copiedBytes();
  for (const FileTrayCandidate& candidate : candidates) {
    if (isInvalid(candidate)) {
      ++result.invalid;
      continue;
    }
    // Valid candidates have a source exactly when they are copies.
    const std::string key = candidate.sourcePath.value_or(candidate.path);
    if (known.contains(key) || known.contains(candidate.path)) {
      ++result.duplicates;
      continue;
    }
    if (items_.size() >= static_cast<std::size_t>(capacity)) {
      ++result.refusedForCapacity;
      continue;
    }
    if (candidate.copiedBytes) {
      if (*candidate.copiedBytes > roomLeft(bytesHeld)) {
        ++result.refusedForStoreLimit;
        continue;
      }
      bytesHeld += *candidate.copiedBytes;
    }
    FileTrayItem item{UUID::random(),
                      candidate.bookmark,
                      candidate.isSecurityScoped,
                      candidate.displayName,
                      candidate.path,
                      candidate.contentType,
                      now,
                      candidate.copiedBytes,
                      candidate.sourcePath};
    known.insert(item.path);
    known.insert(key);
    items_.push_back(item);
    result.added.push_back(std::move(item));
  }
  return result;
}

FileTray::CopyAdmission FileTray::admitCopies(std::span<const FileTrayCopyRequest> requests,
                                              std::span<const FileTrayCopyRequest> pending) const {
  CopyAdmission admission;
  PathSet known = knownPaths(items_);
  std::size_t count = items_.size() + pending.size();
  std::int64_t bytesHeld = copiedBytes();
  for (const FileTrayCopyRequest& request : pending) {
    known.insert(request.sourcePath);
    bytesHeld = saturatingAdd(bytesHeld, request.byteCount);
  }
  for (const FileTrayCopyRequest& request : requests) {
    if (!isAbsolute(request.sourcePath) || request.byteCount < 0) {
      ++admission.invalid;
    } else if (known.contains(request.sourcePath)) {
      ++admission.duplicates;
    } else if (count >= static_cast<std::size_t>(capacity)) {
      ++admission.refusedForCapacity;
    } else if (request.byteCount > roomLeft(bytesHeld)) {
      ++admission.refusedForStoreLimit;
    } else {
      admission.accepted.push_back(request);
      known.insert(request.sourcePath);
      bytesHeld += request.byteCount;
      ++count;
    }
  }
  return admission;
}

std::int64_t FileTray::copiedBytes() const {
  std::int64_t total = 0;
  for (const FileTrayItem& item : items_)
    total = saturatingAdd(total, item.copiedBytes.value_or(0));
  return total;
}

std::optional<FileTrayItem> FileTray::remove(const UUID& id) {
  const auto found = std::ranges::find(items_, id, &FileTrayItem::id);
  if (found == items_.end()) return std::nullopt;
  FileTrayItem item = std::move(*found);
  items_.erase(found);
  return item;
}

}  // namespace tindra
