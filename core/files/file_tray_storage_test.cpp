#include "files/file_tray_storage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <iterator>
#include <string>

#include "files/file_tray_stored_parser.h"

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

TEST_F(FileTrayStorageTest, SavesAndLoadsTheTray) {
  FileTrayStorage storage(data());
  FileTrayStorage::Loaded nothing = storage.load();
  EXPECT_TRUE(nothing.tray.items().empty());
  EXPECT_EQ(nothing.problem, std::nullopt);

  FileTray tray;
  const std::vector<FileTrayCandidate> dropped{
      {{1, 2}, false, "a", "/home/ana/a", "public.text", std::nullopt, std::nullopt}};
  tray.add(dropped, 1'700'000'000.25);
  ASSERT_TRUE(storage.save(tray).has_value());

  FileTrayStorage::Loaded loaded = FileTrayStorage(data()).load();
  EXPECT_EQ(loaded.tray.items(), tray.items());
  EXPECT_EQ(loaded.problem, std::nullopt);
}

TEST_F(FileTrayStorageTest, CorruptOrNewerListIsKeptAsideNotOverwritten) {
  const fs::path list = data() / "file-tray.json";
  for (const char* corrupt : {"{\"version\":1,\"items\":[", "\x89PNG"}) {
    put(list, corrupt);
    FileTrayStorage storage(data());
    FileTrayStorage::Loaded loaded = storage.load();
    EXPECT_EQ(loaded.problem, Problem::unreadable);
    EXPECT_TRUE(loaded.tray.items().empty());
    ASSERT_TRUE(loaded.keptAside.has_value());
    EXPECT_EQ(contents(*loaded.keptAside), corrupt);
    EXPECT_TRUE(storage.save(loaded.tray).has_value());
  }
  // The second bad file did not replace the first one kept aside.
  EXPECT_EQ(contents(data() / "file-tray.json.unreadable"), "{\"version\":1,\"items\":[");
  EXPECT_EQ(contents(data() / "file-tray.json.unreadable-2"), "\x89PNG");

  const std::string newer = R"({"version":2,"items":[],"shelves":[]})";
  put(list, newer);
  FileTrayStorage storage(data());
  FileTrayStorage::Loaded loaded = storage.load();
  EXPECT_EQ(loaded.problem, Problem::newerVersion);
  EXPECT_EQ(loaded.keptAside, data() / "file-tray.json.version-2");
  ASSERT_TRUE(storage.save(loaded.tray).has_value());
  EXPECT_EQ(contents(data() / "file-tray.json.version-2"), newer);
  EXPECT_TRUE(FileTrayStoredParser::parse(contents(list)).has_value());
}

TEST_F(FileTrayStorageTest, ListWithBadItemsKeepsTheGoodOnesAndTheOriginal) {
  const std::string text =
      R"({"version":1,"items":[{"id":"E621E1F8-C36C-495A-93FC-0C247A3E6E5F","bookmark":"01",)"
      R"("isSecurityScoped":false,"displayName":"a","path":"/a","addedAt":1},{"path":"b"}]})";
  put(data() / "file-tray.json", text);
  FileTrayStorage::Loaded loaded = FileTrayStorage(data()).load();
  EXPECT_EQ(loaded.problem, Problem::skippedItems);
  EXPECT_EQ(loaded.tray.items().size(), 1u);
  ASSERT_TRUE(loaded.keptAside.has_value());
  EXPECT_EQ(contents(*loaded.keptAside), text);
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

  EXPECT_FALSE(FileTrayStorage::isCopyName("."));
  EXPECT_FALSE(FileTrayStorage::isCopyName(".."));
  EXPECT_FALSE(FileTrayStorage::isCopyName(".incoming"));
  EXPECT_TRUE(FileTrayStorage::isCopyName("..incoming"));
  EXPECT_TRUE(FileTrayStorage(root_ / "missing").scan(now).copies.empty());
}

}  // namespace
}  // namespace tindra
