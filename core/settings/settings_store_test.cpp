#include "settings/settings_store.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>
#include <set>
#include <sstream>

#include "settings/faulty_file_system_calls.h"
#include "settings/settings_keys.h"

namespace tindra {
namespace {

namespace fs = std::filesystem;

class SettingsStoreTest : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ = fs::temp_directory_path() /
              ("tindra-settings-" + std::to_string(getpid()) + "-" +
               ::testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::remove_all(folder_);
    file_ = folder_ / "tindra" / "settings.json";
  }
  void TearDown() override { fs::remove_all(folder_); }

  SettingsStore open(FileSystemCalls& calls = FileSystemCalls::system()) {
    return SettingsStore(
        file_, [] { return 1'795'000'000.0; }, calls);
  }

  void putFile(const std::string& text) {
    fs::create_directories(file_.parent_path());
    std::ofstream(file_) << text;
  }

  std::string fileText() const {
    std::ifstream in(file_);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
  }

  fs::path folder_;
  fs::path file_;
};

TEST_F(SettingsStoreTest, EmptyDomainReadsEveryDefaultAndWritesNothing) {
  SettingsStore store = open();
  EXPECT_EQ(store.read(settings::hoverOpenDelay), 0.12);
  EXPECT_EQ(store.read(settings::batteryLowThreshold), 20);
  EXPECT_EQ(store.read(settings::displaySelection), "all");
  EXPECT_EQ(store.read(settings::noticeDurationScale), NoticeDurationScale::medium);
  EXPECT_EQ(store.read(settings::nowPlayingFallbackNoticeOSVersion), std::nullopt);
  EXPECT_TRUE(store.read(settings::pinnedWidgets).empty());
  for (const auto& key : settings::allKeys()) EXPECT_EQ(store.stored(key.name), nullptr);
  EXPECT_FALSE(fs::exists(file_));
}

TEST_F(SettingsStoreTest, WriteThenResetRestoresDefaultAndPersists) {
  {
    SettingsStore store = open();
    ASSERT_TRUE(store.write(settings::hoverOpenDelay, 0.3));
    ASSERT_TRUE(store.write(settings::calendarExcludedIdentifiers, {"work", "birthdays"}));
    ASSERT_TRUE(store.write(settings::nowPlayingFallbackNoticeOSVersion,
                            std::optional<std::string>("14.2")));
  }
  SettingsStore store = open();
  EXPECT_EQ(store.read(settings::hoverOpenDelay), 0.3);
  EXPECT_EQ(store.read(settings::calendarExcludedIdentifiers),
            (std::vector<std::string>{"work", "birthdays"}));
  EXPECT_EQ(store.read(settings::nowPlayingFallbackNoticeOSVersion), "14.2");
  ASSERT_TRUE(store.reset(settings::hoverOpenDelay));
  EXPECT_EQ(store.read(settings::hoverOpenDelay), 0.12);
  EXPECT_EQ(fileText().find("hoverOpenDelay"), std::string::npos);
}

TEST_F(SettingsStoreTest, ObserverIsCalledOncePerWriteUntilReleased) {
  SettingsStore store = open();
  std::vector<bool> seen;
  SettingsObservation token =
      store.observe(settings::hideInFullScreen, [&](const bool& value) { seen.push_back(value); });
  ASSERT_TRUE(store.write(settings::hideInFullScreen, false));
  ASSERT_TRUE(store.write(settings::hideInFullScreen, false));
  ASSERT_TRUE(store.write(settings::hideForGames, false));  // another key: not observed
  ASSERT_TRUE(store.reset(settings::hideInFullScreen));
  EXPECT_EQ(seen, (std::vector<bool>{false, false, true}));
  token.reset();
  ASSERT_TRUE(store.write(settings::hideInFullScreen, false));
  EXPECT_EQ(seen.size(), 3U);
}

TEST_F(SettingsStoreTest, ObservationsMayEndDuringNotificationAndOutliveTheStore) {
  SettingsObservation survivor;
  {
    SettingsStore store = open();
    int calls = 0;
    SettingsObservation second;
    SettingsObservation first = store.observe({"playSounds"}, [&](std::string_view) {
      ++calls;
      second.reset();  // ends the other observation before it is called
    });
    second = store.observe({"playSounds"}, [&](std::string_view) { ++calls; });
    ASSERT_TRUE(store.write(settings::playSounds, false));
    EXPECT_EQ(calls, 1);
    survivor = store.observe({"playSounds"}, [](std::string_view) {});
  }
  survivor.reset();  // the store is gone; nothing to do, nothing to crash
}

TEST_F(SettingsStoreTest, WrongTypesAndUnknownCasesReadAsDefaults) {
  putFile(R"({"playSounds": "yes", "batteryLowThreshold": 12.5, "hudDuration": 3,
              "notchOpeningMode": "wiggle", "hudTint": "level", "pinnedWidgets": ["a", 1],
              "simulatedNotchWidth": null, "accessoryLowThreshold": 1e300, "futureKey": [1]})");
  SettingsStore store = open();
  EXPECT_EQ(store.read(settings::playSounds), true);
  EXPECT_EQ(store.read(settings::batteryLowThreshold), 20);
  EXPECT_EQ(store.read(settings::hudDuration), 3.0);
  EXPECT_EQ(store.read(settings::notchOpeningMode), NotchOpeningMode::hover);
  EXPECT_EQ(store.read(settings::hudTint), HUDTint::level);
  EXPECT_TRUE(store.read(settings::pinnedWidgets).empty());
  EXPECT_EQ(store.read(settings::simulatedNotchWidth), 190.0);
  EXPECT_EQ(store.read(settings::accessoryLowThreshold), 20);
  // Writing keeps what it does not understand, for a newer version of Tindra.
  ASSERT_TRUE(store.write(settings::playSounds, false));
  EXPECT_NE(fileText().find("futureKey"), std::string::npos);
  EXPECT_NE(fileText().find("wiggle"), std::string::npos);
}

TEST_F(SettingsStoreTest, UnreadableFileIsKeptAsideAndStoreStartsFromDefaults) {
  for (const std::string garbage : {"{\"playSounds\": fals", "[true]", ""}) {
    putFile(garbage);
    SettingsStore store = open();
    ASSERT_TRUE(store.keptAside().has_value()) << garbage;
    EXPECT_EQ(store.keptAside()->filename().string().rfind("settings.json.unreadable-2026", 0), 0U);
    std::ifstream aside(*store.keptAside());
    std::string kept((std::istreambuf_iterator<char>(aside)), std::istreambuf_iterator<char>());
    EXPECT_EQ(kept, garbage);
    EXPECT_EQ(store.read(settings::playSounds), true);
    ASSERT_TRUE(store.write(settings::playSounds, false));
    EXPECT_EQ(open().read(settings::playSounds), false);
    fs::remove(file_);
  }
  // Three unreadable files in the same second were all kept.
  int kept = 0;
  for (const auto& entry : fs::directory_iterator(file_.parent_path())) {
    kept += entry.path().filename().string().find(".unreadable-") != std::string::npos;
  }
  EXPECT_EQ(kept, 3);
}

TEST_F(SettingsStoreTest, ReloadNotifiesOnlyKeysAnotherProcessChanged) {
  SettingsStore mine = open();
  ASSERT_TRUE(mine.write(settings::hudDuration, 2.0));
  ASSERT_TRUE(mine.write(settings::playSounds, false));
  std::vector<std::string> changed;
  SettingsObservation token =
      mine.observe({"hudDuration", "playSounds", "hudTint"},
                   [&](std::string_view name) { changed.emplace_back(name); });

  SettingsStore theirs = open();
  ASSERT_TRUE(theirs.write(settings::hudTint, HUDTint::accent));
  ASSERT_TRUE(theirs.reset(settings::hudDuration));
  ASSERT_TRUE(theirs.write(settings::playSounds, false));  // same value: no change for others

  mine.reload();
  EXPECT_EQ(std::set<std::string>(changed.begin(), changed.end()),
            (std::set<std::string>{"hudDuration", "hudTint"}));
  EXPECT_EQ(mine.read(settings::hudDuration), 1.5);
  EXPECT_EQ(mine.read(settings::hudTint), HUDTint::accent);
}

TEST_F(SettingsStoreTest, WritingMergesChangesMadeElsewhere) {
  SettingsStore first = open();
  SettingsStore second = open();
  ASSERT_TRUE(first.write(settings::weatherEnabled, true));
  ASSERT_TRUE(second.write(settings::calendarEnabled, true));  // must not undo the weather
  SettingsStore fresh = open();
  EXPECT_TRUE(fresh.read(settings::weatherEnabled));
  EXPECT_TRUE(fresh.read(settings::calendarEnabled));
}

TEST_F(SettingsStoreTest, DefaultFileFollowsXDGConfigHome) {
  const char* old = std::getenv("XDG_CONFIG_HOME");
  const std::string saved = old ? old : "";
  setenv("XDG_CONFIG_HOME", "/tmp/cfg", 1);
  EXPECT_EQ(SettingsStore::defaultFile(), fs::path("/tmp/cfg/tindra/settings.json"));
  setenv("XDG_CONFIG_HOME", "relative/cfg", 1);
  EXPECT_EQ(SettingsStore::defaultFile().filename(), "settings.json");
  EXPECT_EQ(SettingsStore::defaultFile().parent_path().parent_path().filename(), ".config");
  if (old) {
    setenv("XDG_CONFIG_HOME", saved.c_str(), 1);
  } else {
    unsetenv("XDG_CONFIG_HOME");
  }
}

TEST(SettingsKeys, TableIsCompleteOrderedAndUnique) {
  const auto& keys = settings::allKeys();
  ASSERT_EQ(keys.size(), 79U);
  EXPECT_EQ(keys.front().name, "onboardingCompleted");
  EXPECT_EQ(keys.back().name, "fileTrayMode");
  std::set<std::string_view> names;
  for (const auto& key : keys) {
    EXPECT_TRUE(names.insert(key.name).second) << key.name;
    EXPECT_FALSE(key.description.empty()) << key.name;
    if (key.type == settings::SettingsKeyDescription::Type::enumeration) {
      const std::string* raw = key.defaultValue.asString();
      ASSERT_NE(raw, nullptr);
      EXPECT_NE(std::find(key.cases.begin(), key.cases.end(), *raw), key.cases.end()) << key.name;
    }
  }
  const auto* width = settings::describeKey("simulatedNotchWidth");
  ASSERT_NE(width, nullptr);
  EXPECT_EQ(width->defaultValue, JSONValue(190.0));
  EXPECT_EQ(settings::describeKey("AppleLanguages"), nullptr);
}

TEST_F(SettingsStoreTest, AWriteThatFailsAtAnyStepKeepsWhatWasSaved) {
  ASSERT_TRUE(open().write(settings::hudDuration, 2.5));
  const std::string saved = fileText();
  using Call = FaultyCalls::Call;
  // Opening the store and reloading before the write each open the file once to read it.
  for (auto [step, nth] :
       {std::pair{Call::open, 3}, {Call::write, 1}, {Call::fsync, 1}, {Call::rename, 1}}) {
    FaultyCalls calls;
    calls.fail(step, EIO, nth);
    SettingsStore store = open(calls);
    const auto result = store.write(settings::hudDuration, 4.0);
    EXPECT_FALSE(result.has_value()) << static_cast<int>(step);
    EXPECT_EQ(fileText(), saved) << static_cast<int>(step);
    EXPECT_EQ(open().read(settings::hudDuration), 2.5);
  }
}

TEST_F(SettingsStoreTest, NothingIsSavedOverAnUnreadableFileThatCouldNotBeMovedAside) {
  putFile("{ not json");
  FaultyCalls calls;
  calls.fail(FaultyCalls::Call::rename, EACCES);  // the move aside, on opening
  SettingsStore store = open(calls);
  EXPECT_FALSE(store.keptAside());
  calls.fail(FaultyCalls::Call::rename, EACCES, 2);  // and again when the write reloads
  const auto refused = store.write(settings::playSounds, false);
  ASSERT_FALSE(refused.has_value());
  EXPECT_EQ(refused.error().step, DurableFile::Failure::Step::rename);
  EXPECT_EQ(fileText(), "{ not json");

  // Once the move works, the unreadable text is kept aside and the write goes through.
  ASSERT_TRUE(store.write(settings::playSounds, false));
  ASSERT_TRUE(store.keptAside());
  std::ifstream aside(*store.keptAside());
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(aside), {}), "{ not json");
  EXPECT_FALSE(open().read(settings::playSounds));
}

}  // namespace
}  // namespace tindra
