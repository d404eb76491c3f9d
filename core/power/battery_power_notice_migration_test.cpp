#include "power/battery_power_notice_migration.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

TEST(BatteryPowerNoticeMigration, CopiesOldValueOnlyIntoUnsetKeys) {
  using M = BatteryPowerNoticeMigration;
  EXPECT_EQ(M::migrate(std::nullopt, std::nullopt, std::nullopt), std::nullopt);
  EXPECT_EQ(M::migrate(false, std::nullopt, std::nullopt), (M{false, false}));
  EXPECT_EQ(M::migrate(false, true, std::nullopt), (M{std::nullopt, false}));
  EXPECT_EQ(M::migrate(true, false, false), (M{std::nullopt, std::nullopt}));
}

}  // namespace
}  // namespace tindra
