#include "settings/uuid.h"

#include <gtest/gtest.h>

#include <unordered_set>

namespace tindra {
namespace {

TEST(UUID, RandomIsVersionFourInUpperCaseCanonicalText) {
  std::unordered_set<UUID> seen;
  for (int i = 0; i < 1000; ++i) {
    const UUID uuid = UUID::random();
    EXPECT_EQ(uuid.bytes()[6] >> 4, 4);
    EXPECT_EQ(uuid.bytes()[8] >> 6, 0b10);
    const std::string text = uuid.text();
    ASSERT_EQ(text.size(), 36U);
    EXPECT_EQ(text[14], '4');
    for (std::size_t i = 0; i < text.size(); ++i) {
      const bool dash = i == 8 || i == 13 || i == 18 || i == 23;
      EXPECT_TRUE(dash ? text[i] == '-' : std::isxdigit(text[i]) && !std::islower(text[i])) << text;
    }
    EXPECT_TRUE(seen.insert(uuid).second) << "repeated " << text;
  }
}

TEST(UUID, TextOfKnownBytes) {
  const UUID uuid(UUID::Bytes{0xE6, 0x21, 0xE1, 0xF8, 0xC3, 0x6C, 0x49, 0x5A, 0x93, 0xFC, 0x0C,
                              0x24, 0x7A, 0x3E, 0x6E, 0x5F});
  EXPECT_EQ(uuid.text(), "E621E1F8-C36C-495A-93FC-0C247A3E6E5F");
  EXPECT_EQ(UUID().text(), "00000000-0000-0000-0000-000000000000");
  EXPECT_EQ(UUID::fromText("e621e1f8-c36c-495a-93fc-0c247a3e6e5f"), uuid);
  EXPECT_EQ(UUID::fromText("E621e1f8-C36C-495a-93FC-0c247A3E6E5F"), uuid);
  EXPECT_EQ(UUID::fromText("FFFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF")->text(),
            "FFFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF");
}

TEST(UUID, FromTextRejectsEverythingButTheCanonicalForm) {
  for (const char* text : {
           "",
           "E621E1F8-C36C-495A-93FC-0C247A3E6E5",    // one digit short
           "E621E1F8-C36C-495A-93FC-0C247A3E6E5F0",  // one digit long
           "E621E1F8C36C495A93FC0C247A3E6E5F",       // no dashes
           "E621E1F-8C36C-495A-93FC-0C247A3E6E5F",   // dash one place early
           "E621E1F8-C36C-495A-93FC+0C247A3E6E5F",
           "E621E1F8-C36C-495A-93FC-0C247A3E6E5G",  // not hex
           "{621E1F8-C36C-495A-93FC-0C247A3E6E5}",
           " 621E1F8-C36C-495A-93FC-0C247A3E6E5F",
           "E621E1F8-C36C-495A-93FC-0C247A3E6E5\n",
           "E621E1F8-C36C-495A-93FC--C247A3E6E5F",
       }) {
    EXPECT_EQ(UUID::fromText(text), std::nullopt) << text;
  }
  EXPECT_EQ(UUID::fromText(std::string_view("E621E1F8-C36C-495A-93FC-0C247A3E6E5\0", 36)),
            std::nullopt);
}

TEST(UUID, EqualityOrderAndHashFollowTheBytes) {
  const UUID low(UUID::Bytes{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1});
  const UUID high(UUID::Bytes{1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
  EXPECT_LT(UUID(), low);
  EXPECT_LT(low, high);
  EXPECT_EQ(*UUID::fromText(low.text()), low);
  const std::hash<UUID> hash;
  EXPECT_EQ(hash(*UUID::fromText(high.text())), hash(high));
  EXPECT_NE(hash(low), hash(UUID()));
  EXPECT_NE(hash(high), hash(UUID()));
}

}  // namespace
}  // namespace tindra
