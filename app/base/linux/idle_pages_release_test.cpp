#include "base/linux/idle_pages_release.h"

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTest>
#include <QtGlobal>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace tindra {
namespace {

// One mapping as /proc/PID/smaps writes it, with the lines the selection reads.
std::string mapping(const std::string& header, int rssKB, int anonymousKB,
                    const std::string& flags = "rd mr mw me") {
  return header + "\nSize:                 64 kB\nRss:            " + std::to_string(rssKB) +
         " kB\nPss:                  8 kB\nAnonymous:      " + std::to_string(anonymousKB) +
         " kB\nSwap:                  0 kB\nVmFlags: " + flags + "\n";
}

TEST(DroppableFileMappings, TakesOnlyCleanReadOnlyPagesOfRegularFiles) {
  const std::string smaps =
      mapping("55d000000000-55d000010000 r--p 00000000 08:01 11 /usr/bin/tindra", 40, 0) +
      mapping("55d000010000-55d000030000 r-xp 00010000 08:01 11 /usr/bin/tindra", 100, 0) +
      // The relocated read-only data: dropping it would undo the relocations.
      mapping("55d000030000-55d000031000 r--p 00030000 08:01 11 /usr/bin/tindra", 4, 4) +
      mapping("55d000031000-55d000032000 rw-p 00031000 08:01 11 /usr/bin/tindra", 4, 0) +
      mapping("7f0000000000-7f0000100000 rw-p 00000000 00:00 0", 500, 500) +
      mapping("7f0000100000-7f0000200000 r--s 00000000 08:01 42 /usr/share/fonts/a.ttf", 60, 0) +
      mapping("7f0000200000-7f0000201000 ---p 00000000 08:01 43 /usr/lib/libx.so", 0, 0) +
      mapping("7f0000300000-7f0000310000 r-xp 00000000 08:01 43 /usr/lib/libx.so", 0, 0) +
      mapping("7ffd00000000-7ffd00002000 r-xp 00000000 00:00 0 [vdso]", 8, 0);
  EXPECT_EQ(droppableFileMappings(smaps),
            (std::vector<PageRange>{{0x55d000000000, 0x55d000010000},
                                    {0x55d000010000, 0x55d000030000},
                                    {0x7f0000100000, 0x7f0000200000}}));
}

TEST(DroppableFileMappings, LeavesMemoryThatOnlyLooksLikeAFile) {
  const std::string smaps =
      mapping("7f0000000000-7f0000001000 r--s 00000000 00:01 7 /memfd:wayland-shm (deleted)", 4,
              0) +
      mapping("7f0000001000-7f0000002000 r--s 00000000 00:05 8 /dev/dri/card0", 4, 0) +
      mapping("7f0000002000-7f0000003000 r--s 00000000 00:01 9 /SYSV00000000 (deleted)", 4, 0) +
      mapping("7f0000003000-7f0000004000 r--p 00000000 08:01 10 /usr/lib/old.so (deleted)", 4, 0) +
      // Locked pages cannot be dropped; the kernel would refuse the whole call.
      mapping("7f0000004000-7f0000005000 r--p 00000000 08:01 11 /usr/lib/locked.so", 4, 0,
              "rd mr mw me lo") +
      // A path with spaces is still a file.
      mapping("7f0000005000-7f0000006000 r--p 00000000 08:01 12 /home/a b/cache.qmlc", 4, 0);
  EXPECT_EQ(droppableFileMappings(smaps),
            (std::vector<PageRange>{{0x7f0000005000, 0x7f0000006000}}));
}

TEST(DroppableFileMappings, KeepsAMappingWhoseDetailsAreMissingOrGarbled) {
  // Without its Anonymous line nobody can tell whether it holds private copies.
  EXPECT_TRUE(
      droppableFileMappings("7f0000000000-7f0000001000 r--p 00000000 08:01 11 /usr/lib/a.so\n"
                            "Rss:                 4 kB\n")
          .empty());
  // Details after a header that did not parse belong to no mapping: nothing is taken from the
  // one before it, whose own lines said it is dirty.
  EXPECT_TRUE(droppableFileMappings(
                  mapping("7f0000000000-7f0000001000 r--p 00000000 08:01 11 /usr/lib/a.so", 4, 4) +
                  "7f0000002000-7f0000001000 r--p 00000000 08:01 11 /usr/lib/a.so\n"
                  "Rss:                 4 kB\nAnonymous:            0 kB\n")
                  .empty());
  EXPECT_TRUE(droppableFileMappings(
                  mapping("zz-7f0000001000 r--p 00000000 08:01 11 /usr/lib/a.so", 4, 0) +
                  mapping("7f0000000000-7f0000001000 r--p 00000000 08:01 x /usr/lib/a.so", 4, 0) +
                  mapping("7f0000000000-7f0000001000 r--p 00000000 08:01 11 /usr/lib/a.so", 4, -1))
                  .empty());
  EXPECT_TRUE(droppableFileMappings("").empty());
  // The last mapping needs no line after it.
  const std::string last =
      mapping("7f0000000000-7f0000001000 r--p 00000000 08:01 11 /usr/lib/a.so", 4, 0);
  EXPECT_EQ(droppableFileMappings(last.substr(0, last.size() - 1)).size(), 1u);
}

// The Rss of the mapping that starts at `at`, in kB, or -1 when none does.
long residentKB(void* at) {
  QFile smaps(QStringLiteral("/proc/self/smaps"));
  if (!smaps.open(QIODevice::ReadOnly)) return -1;
  const QByteArray start = QByteArray::number(reinterpret_cast<quintptr>(at), 16) + '-';
  bool inside = false;
  for (const QByteArray& line : smaps.readAll().split('\n')) {
    if (line.startsWith(start)) inside = true;
    if (inside && line.startsWith("Rss:")) return line.mid(4).trimmed().split(' ').front().toLong();
  }
  return -1;
}

// The real thing on this process: a file's pages go, a private copy of one stays as written.
TEST(IdlePagesRelease, DropsFilePagesAndKeepsWhatWasWritten) {
  // A named file: QTemporaryFile's is an unnamed one, which maps as deleted.
  QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("pages")));
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  const long page = sysconf(_SC_PAGESIZE);
  ASSERT_TRUE(file.write(QByteArray(4 * page, 'f')) == 4 * page);
  file.flush();
  void* shared = mmap(nullptr, 4 * page, PROT_READ, MAP_PRIVATE, file.handle(), 0);
  void* written = mmap(nullptr, 4 * page, PROT_READ | PROT_WRITE, MAP_PRIVATE, file.handle(), 0);
  ASSERT_NE(shared, MAP_FAILED);
  ASSERT_NE(written, MAP_FAILED);
  auto* clean = static_cast<volatile char*>(shared);
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(clean[i * page], 'f');
    EXPECT_EQ(static_cast<volatile char*>(written)[i * page], 'f');
  }
  static_cast<char*>(written)[0] = 'w';
  // Read-only after the write, as the dynamic linker leaves relocated data.
  ASSERT_EQ(mprotect(written, 4 * page, PROT_READ), 0);

  const auto outcome = IdlePagesRelease::releaseNow();
  EXPECT_FALSE(outcome.refused);
  EXPECT_GT(outcome.mappings, 0u);
  EXPECT_EQ(residentKB(shared), 0);
  // Read back from the file on the next touch.
  EXPECT_EQ(clean[3 * page], 'f');
  EXPECT_GT(residentKB(shared), 0);
  EXPECT_EQ(static_cast<const char*>(written)[0], 'w');
  EXPECT_EQ(residentKB(written), 4 * page / 1024);
  munmap(shared, 4 * page);
  munmap(written, 4 * page);
}

// Under AddressSanitizer malloc is the sanitizer's own, and there is no glibc heap to measure.
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
// The Rss of the heap's own mapping, in kB.
long heapResidentKB() {
  QFile smaps(QStringLiteral("/proc/self/smaps"));
  if (!smaps.open(QIODevice::ReadOnly)) return -1;
  bool inside = false;
  for (const QByteArray& line : smaps.readAll().split('\n')) {
    // Detail lines are "Key: value"; every other line opens a mapping.
    const qsizetype colon = line.indexOf(':');
    if (colon < 0 || line.left(colon).contains(' ')) inside = line.endsWith("[heap]");
    if (inside && line.startsWith("Rss:")) return line.mid(4).trimmed().split(' ').front().toLong();
  }
  return -1;
}

// What the heap freed below a block still in use goes back too, which free() alone never does.
TEST(IdlePagesRelease, GivesBackTheHeapFreedBelowWhatIsStillInUse) {
  constexpr std::size_t block = 64 * 1024;  // under the threshold for a mapping of its own
  std::vector<char*> blocks;
  for (int i = 0; i < 256; ++i) {
    blocks.push_back(static_cast<char*>(std::malloc(block)));
    std::memset(blocks.back(), 1, block);
  }
  for (std::size_t i = 0; i + 1 < blocks.size(); ++i) std::free(blocks[i]);
  const long before = heapResidentKB();
  ASSERT_GT(before, 8 * 1024);
  IdlePagesRelease::giveBackFreedHeap();
  EXPECT_LT(heapResidentKB(), before - 8 * 1024);
  std::free(blocks.back());
}
#endif

// Frames as an opened notch draws them: a release once the first frame has settled, then one per
// quiet spell after frames; none while frames keep coming, and none again while nothing draws.
TEST(IdlePagesRelease, ReleasesOnceAfterStartAndOncePerQuietSpell) {
  using namespace std::chrono_literals;
  constexpr auto quiet = 600ms;
  QQuickWindow window;
  window.resize(40, 40);
  window.show();
  IdlePagesRelease release(100ms, quiet);
  release.watchFrames();
  int releases = 0;
  QElapsedTimer sinceFrame;
  QObject::connect(&window, &QQuickWindow::frameSwapped, [&] { sinceFrame.start(); });
  std::vector<qint64> idleAtRelease;
  QObject::connect(&release, &IdlePagesRelease::released, [&] {
    ++releases;
    idleAtRelease.push_back(sinceFrame.elapsed());
  });
  const auto drawFor = [&](std::chrono::milliseconds span) {
    QElapsedTimer drawing;
    drawing.start();
    while (drawing.elapsed() < span.count()) {
      window.update();
      QTest::qWait(15);
    }
  };

  ASSERT_TRUE(QTest::qWaitFor([&] { return releases == 1; }, 5000));
  drawFor(3 * quiet);
  EXPECT_EQ(releases, 1);
  ASSERT_TRUE(QTest::qWaitFor([&] { return releases == 2; }, 5000));
  EXPECT_GE(idleAtRelease.back(), quiet.count() * 9 / 10);
  QTest::qWait(3 * quiet.count());
  EXPECT_EQ(releases, 2);

  drawFor(100ms);
  ASSERT_TRUE(QTest::qWaitFor([&] { return releases == 3; }, 5000));
  EXPECT_GE(idleAtRelease.back(), quiet.count() * 9 / 10);
}

}  // namespace
}  // namespace tindra
