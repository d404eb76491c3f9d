#include "base/backend_selection.h"

#include <gtest/gtest.h>

#include <QtGlobal>

#include "power/battery_backend.h"
#include "power/fake_battery_backend.h"

namespace tindra {
namespace {

class BackendSelectionTest : public ::testing::Test {
 protected:
  ~BackendSelectionTest() override { qunsetenv("TINDRA_FAKE"); }

  std::unique_ptr<BatteryBackend> choose() {
    return chooseBackend(
        "battery", shared_, [] { return std::make_unique<FakeBatteryBackend>(); },
        []() -> std::unique_ptr<BatteryBackend> {
          return std::make_unique<BatteryBackend::Null>(Sentence::verbatim("no battery here"));
        });
  }

  SharedBackends shared_;
};

TEST_F(BackendSelectionTest, TheFakeOnlyWhenTindraFakeNamesTheProviderAndTheDemoFindsIt) {
  for (const char* asked : {"", "media", "batteryx", "media,", "battery-level"}) {
    qputenv("TINDRA_FAKE", asked);
    EXPECT_FALSE(fakeBackendRequested("battery")) << asked;
    EXPECT_NE(dynamic_cast<BatteryBackend::Null*>(choose().get()), nullptr) << asked;
  }
  EXPECT_EQ(shared_.find<FakeBatteryBackend>(), nullptr);

  for (const char* asked : {"battery", "media, battery", "all", " all ,media"}) {
    qputenv("TINDRA_FAKE", asked);
    EXPECT_TRUE(fakeBackendRequested("battery")) << asked;
  }
  const std::unique_ptr<BatteryBackend> chosen = choose();
  EXPECT_EQ(shared_.find<FakeBatteryBackend>(), chosen.get());
}

TEST_F(BackendSelectionTest, ABackendTheDemoRemembersIsForgottenWhenItGoes) {
  qputenv("TINDRA_FAKE", "all");
  choose().reset();
  EXPECT_EQ(shared_.find<FakeBatteryBackend>(), nullptr);
}

}  // namespace
}  // namespace tindra
