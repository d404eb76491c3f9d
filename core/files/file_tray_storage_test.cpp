#include "files/file_tray_storage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <iterator>
#include <string>
#include <tuple>

namespace tindra {
namespace {

namespace fs = std::filesystem;
using Problem = FileTrayStorage::Loaded::Problem;
using RemovalCode = FileTrayStorage::RemovalError::Code;

class FileTrayStorageTest : public testing::Test {
 protected:
  void SetUp() override {
    root_ = fs::path(TINDRA_TEST_BINARY_DIR) / ("file-tray-storage-" + UUID::random().text());
    fs::create_directories(root_ / "data" / "file-tray");
    fs::create_directories(root_ / "elsewhere");
  }
  void TearDown() override { fs::remove_all(root_); }

  fs::path data() const { return root_ / "data"; }
  fs::path copies() const { return data() / "file-tray"; }

  static void put(const fs::path& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
  }
  static std::string contents(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  static FileTrayItem copyAt(const fs::path& path) {
    return FileTrayItem{UUID::random(), {1}, false, "copy", path.string(), {}, 0, 4, "/src"};
  }

  fs::path root_;
};

TEST_F(FileTrayStorageTest, BadListIsKeptAsideAndNeverOverwritten) {
  const std::string damaged =
      R"({"version":1,"items":[{"id":"E621E1F8-C36C-495A-93FC-0C247A3E6E5F","bookmark":"01",)"
      R"("isSecurityScoped":false,"displayName":"a","path":"/a","addedAt":1},{"path":"b"}]})";
  const std::vector<std::tuple<std::string, Problem, std::string, std::size_t>> cases{
      {"{\"version\":1,\"items\":[", Problem::unreadable, "file-tray.json.unreadable", 0},
      {"\x89PNG", Problem::unreadable, "file-tray.json.unreadable-2", 0},
      {R"({"version":2,"items":[],"shelves":[]})", Problem::newerVersion,
       "file-tray.json.version-2", 0},
      {damaged, Problem::skippedItems, "file-tray.json.damaged", 1},
  };
  for (const auto& [text, problem, aside, kept] : cases) {
    put(data() / "file-tray.json", text);
    FileTrayStorage storage(data());
    FileTrayStorage::Loaded loaded = storage.load();
    EXPECT_EQ(loaded.problem, problem);
    EXPECT_EQ(loaded.keptAside, data() / aside);
    EXPECT_EQ(loaded.tray.items().size(), kept);
    ASSERT_TRUE(storage.save(loaded.tray).has_value());
    EXPECT_EQ(contents(data() / aside), text);

    FileTrayStorage::Loaded saved = FileTrayStorage(data()).load();
    EXPECT_EQ(saved.problem, std::nullopt);
    EXPECT_EQ(saved.tray.items(), loaded.tray.items());
  }
}

TEST_F(FileTrayStorageTest, DeletesTheCopyAndNothingOutsideTheTray) {
  const FileTrayStorage storage(data());
  fs::create_directories(copies() / "A1");
  put(copies() / "A1" / "photo.jpg", "copy");
  put(copies() / "keep.txt", "other copy");
  ASSERT_TRUE(storage.deleteCopy(copyAt(copies() / "A1" / "photo.jpg")).has_value());
  EXPECT_FALSE(fs::exists(copies() / "A1"));  // its emptied folder goes too
  EXPECT_TRUE(fs::exists(copies() / "keep.txt"));
  EXPECT_TRUE(fs::exists(copies()));
  // Already gone is fine.
  EXPECT_TRUE(storage.deleteCopy(copyAt(copies() / "A1" / "photo.jpg")).has_value());

  const fs::path victim = root_ / "elsewhere" / "original.txt";
  put(victim, "original");
  fs::create_symlink(victim, copies() / "link-to-file");
  fs::create_directory_symlink(root_ / "elsewhere", copies() / "link-to-folder");
  const std::vector<std::pair<std::string, RemovalCode>> tampered{
      {(copies() / ".." / ".." / "elsewhere" / "original.txt").string(), RemovalCode::outsideTray},
      {(copies() / "sub" / ".." / "keep.txt").string(), RemovalCode::outsideTray},
      {victim.string(), RemovalCode::outsideTray},
      {(copies() / "link-to-file").string(), RemovalCode::outsideTray},
      {(copies() / "link-to-folder" / "original.txt").string(), RemovalCode::outsideTray},
      {(copies() / "link-to-folder").string(), RemovalCode::outsideTray},
      {copies().string(), RemovalCode::outsideTray},
      {copies().string() + "/", RemovalCode::outsideTray},
      {copies().string() + "-evil/x", RemovalCode::outsideTray},
      {"file-tray/keep.txt", RemovalCode::relativePath},
      {"", RemovalCode::relativePath},
  };
  for (const auto& [path, code] : tampered) {
    EXPECT_EQ(storage.deleteCopy(copyAt(path)).error().code, code) << path;
  }
  FileTrayItem linkItem = copyAt(copies() / "keep.txt");
  linkItem.copiedBytes.reset();
  EXPECT_EQ(storage.deleteCopy(linkItem).error().code, RemovalCode::notACopy);

  EXPECT_EQ(contents(victim), "original");
  EXPECT_TRUE(fs::exists(copies() / "keep.txt"));
}

TEST_F(FileTrayStorageTest, ScanSkipsIncomingAndFindsStaleLeftovers) {
  const FileTrayStorage storage(data());
  put(copies() / "done.pdf", "");
  put(copies() / ".incoming-old", "");
  fs::create_directory(copies() / ".incoming-new");
  put(copies() / ".hidden-copy", "");
  const auto stamp = fs::last_write_time(copies() / ".incoming-new");
  fs::last_write_time(copies() / ".incoming-old", stamp - std::chrono::seconds(121));
  const double now =
      std::chrono::duration<double>(std::chrono::file_clock::to_sys(stamp).time_since_epoch())
          .count();

  FileTrayStorage::Scan scan = storage.scan(now);
  EXPECT_THAT(scan.copies, testing::UnorderedElementsAre("done.pdf", ".hidden-copy"));
  EXPECT_THAT(scan.staleIncoming, testing::ElementsAre(".incoming-old"));
  EXPECT_THAT(storage.scan(now - 1).staleIncoming, testing::IsEmpty());  // 120 s: not yet

  EXPECT_EQ(storage.removeStaleIncoming(now), 1);
  EXPECT_FALSE(fs::exists(copies() / ".incoming-old"));
  EXPECT_TRUE(fs::exists(copies() / ".incoming-new"));

  EXPECT_FALSE(FileTrayStorage::isCopyName(".."));
  EXPECT_TRUE(FileTrayStorage(root_ / "missing").scan(now).copies.empty());
}

}  // namespace
}  // namespace tindra
