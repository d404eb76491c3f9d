#include "base/uuid.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unordered_set>

namespace tindra {
namespace {

TEST(UUID, RandomIsVersionFourInUpperCaseText) {
  std::unordered_set<UUID> seen;
  for (int i = 0; i < 1000; ++i) {
    const UUID uuid = UUID::random();
    EXPECT_THAT(uuid.text(), testing::MatchesRegex("[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB]"
                                                   "[0-9A-F]{3}-[0-9A-F]{12}"));
    EXPECT_TRUE(seen.insert(uuid).second) << "repeated " << uuid.text();
  }
}

TEST(UUID, TextReadsInEitherCaseAndPrintsUpperCase) {
  const UUID uuid(UUID::Bytes{0xE6, 0x21, 0xE1, 0xF8, 0xC3, 0x6C, 0x49, 0x5A, 0x93, 0xFC, 0x0C,
                              0x24, 0x7A, 0x3E, 0x6E, 0x5F});
  EXPECT_EQ(uuid.text(), "E621E1F8-C36C-495A-93FC-0C247A3E6E5F");
  EXPECT_EQ(UUID::fromText("e621e1f8-c36c-495a-93fc-0c247a3e6e5f"), uuid);
  EXPECT_EQ(UUID::fromText("E621e1f8-C36C-495a-93FC-0c247A3E6E5F"), uuid);
  EXPECT_EQ(UUID().text(), "00000000-0000-0000-0000-000000000000");
  EXPECT_EQ(UUID::fromText("FFFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF")->text(),
            "FFFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF");
}

TEST(UUID, FromTextRejectsAnyOtherForm) {
  for (const std::string_view text : std::initializer_list<std::string_view>{
           "",
           "E621E1F8-C36C-495A-93FC-0C247A3E6E5",
           "E621E1F8-C36C-495A-93FC-0C247A3E6E5F0",
           "E621E1F8C36C495A93FC0C247A3E6E5F",
           "E621E1F-8C36C-495A-93FC-0C247A3E6E5F",
           "E621E1F8-C36C-495A-93FC+0C247A3E6E5F",
           "E621E1F8-C36C-495A-93FC-0C247A3E6E5G",
           "{621E1F8-C36C-495A-93FC-0C247A3E6E5}",
           " 621E1F8-C36C-495A-93FC-0C247A3E6E5F",
           "E621E1F8-C36C-495A-93FC--C247A3E6E5F",
           std::string_view("E621E1F8-C36C-495A-93FC-0C247A3E6E5\0", 36),
       }) {
    EXPECT_EQ(UUID::fromText(text), std::nullopt) << text;
  }
}

TEST(UUID, OrderAndHashFollowBothHalves) {
  const UUID low(UUID::Bytes{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1});
  const UUID high(UUID::Bytes{1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
  EXPECT_LT(UUID(), low);
  EXPECT_LT(low, high);
  const std::hash<UUID> hash;
  EXPECT_EQ(hash(*UUID::fromText(high.text())), hash(high));
  EXPECT_NE(hash(low), hash(UUID()));
  EXPECT_NE(hash(high), hash(UUID()));
}

}  // namespace
}  // namespace tindra
