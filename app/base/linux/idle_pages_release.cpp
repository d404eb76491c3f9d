#include "base/linux/idle_pages_release.h"

// <cstdlib> first: __GLIBC__, which the heap's trim depends on, is defined by the C library's
// own headers, and is unknown before one of them.
#include <cstdlib>
#if defined(__GLIBC__)
#include <malloc.h>
#endif
#include <sys/mman.h>

#include <QFile>
#include <QGuiApplication>
#include <QQuickWindow>
#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <optional>
#include <utility>

#include "base/logging_categories.h"

namespace tindra {
namespace {

struct Mapping {
  PageRange range;
  bool fileBacked = false;
  bool writable = false;
  std::size_t residentKB = 0;
  std::optional<std::size_t> anonymousKB;  // unknown until its line is read
  bool locked = false;
};

std::string_view nextField(std::string_view& line) {
  const std::size_t start = line.find_first_not_of(' ');
  if (start == std::string_view::npos) {
    line = {};
    return {};
  }
  line.remove_prefix(start);
  const std::size_t end = std::min(line.find(' '), line.size());
  const std::string_view field = line.substr(0, end);
  line.remove_prefix(end);
  return field;
}

template <class Number>
bool parseNumber(std::string_view text, Number& value, int base = 10) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, base);
  return error == std::errc() && end == text.data() + text.size() && !text.empty();
}

// A regular file's path; device nodes, memfd and System V shared memory are memory, not files
// to read back from, and a deleted file is left alone.
bool isRegularFilePath(std::string_view path) {
  if (!path.starts_with('/') || path.ends_with(" (deleted)")) return false;
  return !path.starts_with("/dev/") && !path.starts_with("/memfd:") && !path.starts_with("/SYSV");
}

// "7f00-7f80 r-xp 00000000 08:01 1234   /usr/lib/libx.so": a mapping's first line, else nothing.
std::optional<Mapping> parseHeader(std::string_view line) {
  const std::string_view addresses = nextField(line);
  const std::size_t dash = addresses.find('-');
  if (dash == std::string_view::npos) return std::nullopt;
  Mapping mapping;
  if (!parseNumber(addresses.substr(0, dash), mapping.range.begin, 16) ||
      !parseNumber(addresses.substr(dash + 1), mapping.range.end, 16) ||
      mapping.range.end <= mapping.range.begin) {
    return std::nullopt;
  }
  const std::string_view permissions = nextField(line);
  if (permissions.size() != 4) return std::nullopt;
  nextField(line);  // offset
  nextField(line);  // device
  std::uint64_t inode = 0;
  if (!parseNumber(nextField(line), inode)) return std::nullopt;
  const std::size_t pathStart = line.find_first_not_of(' ');
  const std::string_view path =
      pathStart == std::string_view::npos ? std::string_view() : line.substr(pathStart);
  mapping.writable = permissions[1] == 'w';
  const bool accessible = permissions[0] == 'r' || permissions[2] == 'x';
  mapping.fileBacked = accessible && inode != 0 && isRegularFilePath(path);
  return mapping;
}

// "Rss:    120 kB"
std::optional<std::size_t> kilobytes(std::string_view line, std::string_view key) {
  if (!line.starts_with(key)) return std::nullopt;
  line.remove_prefix(key.size());
  std::size_t value = 0;
  if (!parseNumber(nextField(line), value) || nextField(line) != "kB") return std::nullopt;
  return value;
}

bool hasFlag(std::string_view flags, std::string_view flag) {
  for (std::string_view each = nextField(flags); !each.empty(); each = nextField(flags)) {
    if (each == flag) return true;
  }
  return false;
}

bool droppable(const Mapping& mapping) {
  return mapping.fileBacked && !mapping.writable && !mapping.locked && mapping.residentKB > 0 &&
         mapping.anonymousKB == std::size_t{0};
}

}  // namespace

std::vector<PageRange> droppableFileMappings(std::string_view smaps) {
  std::vector<PageRange> ranges;
  std::optional<Mapping> current;
  const auto close = [&] {
    if (current && droppable(*current)) ranges.push_back(current->range);
    current.reset();
  };
  while (!smaps.empty()) {
    const std::size_t end = std::min(smaps.find('\n'), smaps.size());
    const std::string_view line = smaps.substr(0, end);
    smaps.remove_prefix(std::min(end + 1, smaps.size()));
    // Detail lines are "Key: value"; every other line opens a mapping, and one that does not
    // parse opens none, so its details are not taken for the one before it.
    const std::size_t colon = line.find(':');
    if (colon == std::string_view::npos ||
        line.substr(0, colon).find(' ') != std::string_view::npos) {
      close();
      current = parseHeader(line);
    } else if (!current) {
      continue;
    } else if (const auto rss = kilobytes(line, "Rss:")) {
      current->residentKB = *rss;
    } else if (const auto anonymous = kilobytes(line, "Anonymous:")) {
      current->anonymousKB = *anonymous;
    } else if (line.starts_with("VmFlags:")) {
      current->locked = hasFlag(line.substr(8), "lo");
    }
  }
  close();
  return ranges;
}

IdlePagesRelease::IdlePagesRelease(std::chrono::milliseconds settle,
                                   std::chrono::milliseconds quiet, QObject* parent)
    : QObject(parent), quiet_(quiet) {
  timer_.setSingleShot(true);
  timer_.setInterval(settle);
  connect(&timer_, &QTimer::timeout, this, &IdlePagesRelease::waited);
}

void IdlePagesRelease::watchFrames() {
  for (QWindow* window : QGuiApplication::topLevelWindows()) {
    if (auto* quick = qobject_cast<QQuickWindow*>(window)) {
      // Queued: some render loops swap on a thread of their own. Unique: called again when
      // windows come and go, for those already followed too.
      connect(quick, &QQuickWindow::frameSwapped, this, &IdlePagesRelease::framed,
              static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::UniqueConnection));
    }
  }
}

// Only notes the time: a frame costs no timer restart, and the timer runs only from the first
// frame after a release to the next release.
void IdlePagesRelease::framed() {
  sinceFrame_.start();
  if (timer_.isActive()) return;
  if (released_) timer_.setInterval(quiet_);
  timer_.start();
}

void IdlePagesRelease::waited() {
  if (released_) {
    const auto idle = std::chrono::milliseconds(sinceFrame_.elapsed());
    if (idle < quiet_) {
      timer_.start(quiet_ - idle);
      return;
    }
  }
  released_ = true;
  release();
}

// The heap goes back even where the file pages are refused: what an opened notch allocated is
// freed by the time it has drawn nothing for long.
void IdlePagesRelease::release() {
  QElapsedTimer took;
  took.start();
  Outcome outcome{.refused = true};
  if (!refused_) {
    outcome = releaseNow();
    refused_ = outcome.refused;
  }
  giveBackFreedHeap();
  qCDebug(lcApp) << "gave back the freed heap and the file pages of" << outcome.mappings
                 << "mappings in" << took.nsecsElapsed() / 1000 << "µs";
  emit released(outcome);
}

void IdlePagesRelease::giveBackFreedHeap() {
#if defined(__GLIBC__)
  malloc_trim(0);
#endif
}

IdlePagesRelease::Outcome IdlePagesRelease::releaseNow() {
  QFile file(QStringLiteral("/proc/self/smaps"));
  // The file's size reads as 0: it is read whole, as text the kernel writes out on demand.
  if (!file.open(QIODevice::ReadOnly)) {
    qCInfo(lcApp) << "file pages kept: /proc/self/smaps cannot be read:" << file.errorString();
    return {.refused = true};
  }
  const QByteArray smaps = file.readAll();
  Outcome outcome;
  for (const PageRange& range :
       droppableFileMappings(std::string_view(smaps.constData(), smaps.size()))) {
    // Not MADV_PAGEOUT: for a file the user may not write, which every installed library is, the
    // kernel pages out nothing but private copies. Dropping our mapping of a clean page leaves
    // the page cache to the kernel, which reclaims an unmapped page first.
    if (madvise(reinterpret_cast<void*>(range.begin), range.end - range.begin, MADV_DONTNEED) ==
        0) {
      ++outcome.mappings;
    } else if (!outcome.refused) {
      outcome.refused = true;
      qCInfo(lcApp) << "file pages kept: the kernel refused to drop a file mapping:"
                    << std::strerror(errno);
    }
  }
  return outcome;
}

}  // namespace tindra
