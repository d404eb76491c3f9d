#include "files/file_tray.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace tindra {
namespace {

constexpr double now = 1'763'848'000.5;

FileTrayCandidate link(const std::string& path) {
  return FileTrayCandidate{{0x62}, false, "name", path, std::nullopt, std::nullopt, std::nullopt};
}

FileTrayCandidate copy(const std::string& source, std::int64_t bytes) {
  FileTrayCandidate candidate = link("/data/file-tray" + source);
  candidate.copiedBytes = bytes;
  candidate.sourcePath = source;
  return candidate;
}

std::vector<FileTrayCandidate> links(int count) {
  std::vector<FileTrayCandidate> candidates;
  for (int i = 0; i < count; ++i) candidates.push_back(link("/home/ana/file" + std::to_string(i)));
  return candidates;
}

TEST(FileTray, TwentyFiveFilesOnAnEmptyTrayAdmitTheFirstTwenty) {
  FileTray tray;
  const std::vector<FileTrayCandidate> dropped = links(25);
  const FileTray::AddResult result = tray.add(dropped, now);
  ASSERT_EQ(result.added.size(), 20u);
  EXPECT_EQ(result.refusedForCapacity, 5);
  EXPECT_EQ(tray.items(), result.added);
  EXPECT_EQ(tray.items()[19].addedAt, now);
  EXPECT_NE(tray.items()[0].id, tray.items()[1].id);

  // Removing one makes room for exactly one of the refused files.
  const FileTrayItem removed = tray.items()[3];
  EXPECT_EQ(tray.remove(removed.id), removed);
  EXPECT_EQ(tray.remove(removed.id), std::nullopt);
  EXPECT_EQ(tray.items()[3].path, dropped[4].path);
  EXPECT_EQ(tray.add(dropped, now).added.size(), 1u);
  EXPECT_EQ(tray.items().back().path, dropped[3].path);
}

TEST(FileTray, CopyStoreLimitIsExactlyTwoBillionBytes) {
  FileTray exact;
  const std::vector<FileTrayCandidate> limit{copy("/a", 2'000'000'000), copy("/b", 1),
                                             copy("/c", 0), link("/d")};
  EXPECT_EQ(exact.add(limit, now).refusedForStoreLimit, 1);
  EXPECT_EQ(exact.items().size(), 3u);

  // One byte over is refused; a smaller file later in the same drop still goes in, and the
  // bytes admitted earlier in the drop count.
  FileTray over;
  const std::vector<FileTrayCandidate> drop{copy("/a", 2'000'000'001), copy("/b", 1'500'000'000),
                                            copy("/c", 500'000'001), copy("/d", 500'000'000)};
  EXPECT_EQ(over.add(drop, now).refusedForStoreLimit, 2);
  EXPECT_EQ(over.copiedBytes(), 2'000'000'000);
}

TEST(FileTray, InvalidComesBeforeDuplicateAndDuplicateBeforeCapacity) {
  FileTray tray;
  const std::vector<FileTrayCandidate> full = links(20);
  tray.add(full, now);

  std::vector<FileTrayCandidate> drop(7, full[0]);
  drop[0].path = "home/ana/relative";
  drop[1].bookmark.clear();
  drop[2].bookmark.assign(FileTray::largestBookmark + 1, 1);
  drop[3] = copy("/x", -1);
  drop[4] = copy("relative/source", 1);
  drop[5].sourcePath = "/y";  // a source without a size
  drop[6].copiedBytes = 3;    // a size without a source
  drop.push_back(full[0]);
  drop.push_back(link("/new"));
  const FileTray::AddResult result = tray.add(drop, now);
  EXPECT_EQ(result.invalid, 7);
  EXPECT_EQ(result.duplicates, 1);
  EXPECT_EQ(result.refusedForCapacity, 1);

  FileTray empty;
  std::vector<FileTrayCandidate> largest{link("/w")};
  largest[0].bookmark.assign(FileTray::largestBookmark, 1);
  EXPECT_EQ(empty.add(largest, now).added.size(), 1u);
}

TEST(FileTray, LinkAndCopyOfTheSameOriginalAreDuplicates) {
  for (const bool linkFirst : {true, false}) {
    FileTray tray;
    const std::vector<FileTrayCandidate> first{linkFirst ? link("/r.pdf") : copy("/r.pdf", 1)};
    const std::vector<FileTrayCandidate> second{linkFirst ? copy("/r.pdf", 1) : link("/r.pdf")};
    tray.add(first, now);
    EXPECT_EQ(tray.add(second, now).duplicates, 1);
  }
  // Within one drop the copy's own path is known too.
  FileTray tray;
  const FileTrayCandidate copied = copy("/a", 10);
  const std::vector<FileTrayCandidate> drop{copied, link(copied.path), link("/a")};
  EXPECT_EQ(tray.add(drop, now).duplicates, 2);
}

TEST(FileTray, CopyAdmissionCountsPendingCopies) {
  FileTray tray;
  const std::vector<FileTrayCandidate> held = links(17);
  tray.add(held, now);
  const std::vector<FileTrayCopyRequest> pending{{"/p1", 1'000'000'000}, {"/p2", -5}};
  const std::vector<FileTrayCopyRequest> requests{
      {"/p1", 1},              // still being copied
      {"/home/ana/file3", 1},  // held as a link
      {"relative", 1},
      {"/n1", 1'000'000'001},  // the pending bytes count, the negative ones do not
      {"/n1", 1'000'000'000},  // fits exactly
      {"/n1", 0},              // now a duplicate of the accepted one
      {"/n2", 0},              // 17 held + 2 pending + 1 accepted: full
      {"/n3", -1},
  };
  const FileTray::CopyAdmission admission = tray.admitCopies(requests, pending);
  EXPECT_THAT(admission.accepted, testing::ElementsAre(FileTrayCopyRequest{"/n1", 1'000'000'000}));
  EXPECT_EQ(admission.duplicates, 3);
  EXPECT_EQ(admission.invalid, 2);
  EXPECT_EQ(admission.refusedForStoreLimit, 1);
  EXPECT_EQ(admission.refusedForCapacity, 1);

  // A wrapped byte total would be negative and let anything in.
  constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
  const std::vector<FileTrayCopyRequest> huge{{"/h1", largest}, {"/h2", largest}};
  EXPECT_EQ(FileTray()
                .admitCopies(std::vector<FileTrayCopyRequest>{{"/n", 0}}, huge)
                .refusedForStoreLimit,
            1);
}

}  // namespace
}  // namespace tindra
