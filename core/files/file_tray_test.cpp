#include "files/file_tray.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <set>
#include <string>
#include <vector>

namespace tindra {
namespace {

constexpr double now = 1'763'848'000.5;

FileTrayCandidate link(const std::string& path) {
  return FileTrayCandidate{{0x62, 0x6B}, false,        path.substr(path.rfind('/') + 1),
                           path,         std::nullopt, std::nullopt,
                           std::nullopt};
}

FileTrayCandidate copy(const std::string& source, std::int64_t bytes) {
  FileTrayCandidate candidate = link("/data/file-tray/copy-of" + source);
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
  EXPECT_EQ(result.duplicates + result.refusedForStoreLimit + result.invalid, 0);
  EXPECT_EQ(tray.items(), result.added);
  std::set<UUID> ids;
  for (int i = 0; i < 20; ++i) {
    EXPECT_EQ(tray.items()[i].path, dropped[i].path);
    EXPECT_EQ(tray.items()[i].addedAt, now);
    ids.insert(tray.items()[i].id);
  }
  EXPECT_EQ(ids.size(), 20u);

  // A full tray refuses even a valid new file, but still names a held one a duplicate.
  const std::vector<FileTrayCandidate> more{link("/home/ana/new"), dropped[0]};
  const FileTray::AddResult again = tray.add(more, now);
  EXPECT_EQ(again.refusedForCapacity, 1);
  EXPECT_EQ(again.duplicates, 1);
}

TEST(FileTray, CopyStoreLimitIsExactlyTwoBillionBytes) {
  {
    FileTray tray;
    const std::vector<FileTrayCandidate> exact{copy("/a", 2'000'000'000)};
    EXPECT_EQ(tray.add(exact, now).added.size(), 1u);
    EXPECT_EQ(tray.copiedBytes(), 2'000'000'000);
    // Nothing more fits, but an empty file does and a link costs nothing.
    const std::vector<FileTrayCandidate> more{copy("/b", 1), copy("/c", 0), link("/d")};
    const FileTray::AddResult result = tray.add(more, now);
    EXPECT_EQ(result.refusedForStoreLimit, 1);
    EXPECT_EQ(result.added.size(), 2u);
  }
  {
    FileTray tray;
    // One byte over is refused; the smaller file after it in the same drop still goes in.
    const std::vector<FileTrayCandidate> over{copy("/a", 2'000'000'001), copy("/b", 5)};
    const FileTray::AddResult result = tray.add(over, now);
    EXPECT_EQ(result.refusedForStoreLimit, 1);
    ASSERT_EQ(result.added.size(), 1u);
    EXPECT_EQ(result.added[0].sourcePath, "/b");
  }
  {
    // Within one drop the bytes already admitted count.
    FileTray tray;
    const std::vector<FileTrayCandidate> drop{copy("/a", 1'500'000'000), copy("/b", 500'000'001),
                                              copy("/c", 500'000'000)};
    const FileTray::AddResult result = tray.add(drop, now);
    EXPECT_EQ(result.refusedForStoreLimit, 1);
    EXPECT_EQ(tray.copiedBytes(), 2'000'000'000);
  }
}

TEST(FileTray, InvalidCandidatesAreCountedWhateverTheTrayHolds) {
  FileTray tray;
  const std::vector<FileTrayCandidate> full = links(20);
  tray.add(full, now);

  std::vector<FileTrayCandidate> bad;
  bad.push_back(link("home/ana/relative"));
  bad.push_back(full[0]);
  bad.back().bookmark.clear();  // also held already: invalid comes first
  bad.push_back(copy("/x", -1));
  bad.push_back(copy("relative/source", 1));
  bad.push_back(link("/y"));
  bad.back().sourcePath = "/y";  // a source without a size
  bad.push_back(link("/z"));
  bad.back().copiedBytes = 3;  // a size without a source
  bad.push_back(link("/w"));
  bad.back().bookmark.assign(FileTray::largestBookmark + 1, 1);
  const FileTray::AddResult result = tray.add(bad, now);
  EXPECT_EQ(result.invalid, 7);
  EXPECT_EQ(result.refusedForCapacity + result.duplicates, 0);

  FileTray empty;
  std::vector<FileTrayCandidate> largest{link("/w")};
  largest[0].bookmark.assign(FileTray::largestBookmark, 1);
  EXPECT_EQ(empty.add(largest, now).added.size(), 1u);
}

TEST(FileTray, LinkAndCopyOfTheSameOriginalAreDuplicates) {
  {
    FileTray tray;
    const std::vector<FileTrayCandidate> first{link("/home/ana/report.pdf")};
    tray.add(first, now);
    const std::vector<FileTrayCandidate> second{copy("/home/ana/report.pdf", 10)};
    EXPECT_EQ(tray.add(second, now).duplicates, 1);
  }
  {
    FileTray tray;
    const std::vector<FileTrayCandidate> first{copy("/home/ana/report.pdf", 10)};
    tray.add(first, now);
    const std::vector<FileTrayCandidate> second{link("/home/ana/report.pdf")};
    EXPECT_EQ(tray.add(second, now).duplicates, 1);
  }
  {
    // Within one drop the copy's own path is known too.
    FileTray tray;
    const FileTrayCandidate copied = copy("/home/ana/a", 10);
    const std::vector<FileTrayCandidate> drop{copied, link(copied.path), link("/home/ana/a")};
    const FileTray::AddResult result = tray.add(drop, now);
    EXPECT_EQ(result.added.size(), 1u);
    EXPECT_EQ(result.duplicates, 2);
  }
}

TEST(FileTray, CopyAdmissionCountsPendingCopies) {
  FileTray tray;
  const std::vector<FileTrayCandidate> held = links(17);
  tray.add(held, now);
  const std::vector<FileTrayCopyRequest> pending{{"/p1", 1'000'000'000}, {"/p2", -5}};

  const std::vector<FileTrayCopyRequest> requests{
      {"/p1", 1},              // still being copied
      {"/home/ana/file3", 1},  // held as a link
      {"relative", 1},         // invalid before anything else
      {"/n1", 1'000'000'001},  // the pending copy's bytes count, the negative one's do not
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
  EXPECT_EQ(tray.items().size(), 17u);  // admission changes nothing
}

TEST(FileTray, ByteTotalSaturatesInsteadOfWrapping) {
  FileTray tray;
  constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
  const std::vector<FileTrayCopyRequest> pending{{"/p1", largest}, {"/p2", largest}};
  const std::vector<FileTrayCopyRequest> requests{{"/n", 0}};
  // A wrapped total would be negative and let anything in.
  EXPECT_EQ(tray.admitCopies(requests, pending).refusedForStoreLimit, 1);

  const FileTray stored(
      {FileTrayItem{UUID::random(), {1}, false, "a", "/t/a", {}, 0, largest, "/a"},
       FileTrayItem{UUID::random(), {1}, false, "b", "/t/b", {}, 0, 7, "/b"}});
  EXPECT_EQ(stored.copiedBytes(), largest);
}

TEST(FileTray, RemoveTakesOutOnlyTheNamedItem) {
  FileTray tray;
  const std::vector<FileTrayCandidate> dropped = links(3);
  tray.add(dropped, now);
  const FileTrayItem middle = tray.items()[1];

  EXPECT_EQ(tray.remove(middle.id), middle);
  EXPECT_EQ(tray.remove(middle.id), std::nullopt);
  ASSERT_EQ(tray.items().size(), 2u);
  EXPECT_EQ(tray.items()[1].path, dropped[2].path);
  // Its path is free again.
  const std::vector<FileTrayCandidate> again{dropped[1]};
  EXPECT_EQ(tray.add(again, now).added.size(), 1u);
}

}  // namespace
}  // namespace tindra
