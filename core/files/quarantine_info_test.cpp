#include "files/quarantine_info.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string_view>

namespace tindra {
namespace {

std::optional<double> dateOf(std::string_view value) {
  const std::optional<QuarantineInfo> info = QuarantineInfo::parse(value);
  return info ? info->date : std::nullopt;
}

TEST(QuarantineInfo, ParsesAgentAndHexTime) {
  EXPECT_EQ(QuarantineInfo::parse("0083;6750a3c1;sharingd;"),
            (QuarantineInfo{"sharingd", 0x6750a3c1}));
  EXPECT_EQ(QuarantineInfo::parse("0083;zz;sharingd;"), (QuarantineInfo{"sharingd", std::nullopt}));
  EXPECT_EQ(QuarantineInfo::parse("0083;6750a3c1"), std::nullopt);
  EXPECT_EQ(QuarantineInfo::parse(""), std::nullopt);
  EXPECT_EQ(QuarantineInfo::parse(";;"), (QuarantineInfo{"", std::nullopt}));
  EXPECT_EQ(QuarantineInfo::parse("0001;6750A3C1; Safari ;extra;more"),
            (QuarantineInfo{" Safari ", 0x6750a3c1}));

  EXPECT_EQ(dateOf("0;+10;a"), 16);
  EXPECT_EQ(dateOf("0;-10;a"), -16);
  EXPECT_EQ(dateOf("0;00000000000000000000000000000001;a"), 1);  // leading zeros never overflow
  EXPECT_EQ(dateOf("0;7fffffffffffffff;a"), 9223372036854775807.0);
  EXPECT_EQ(dateOf("0;-8000000000000000;a"), -9223372036854775808.0);
  for (const char* bad :
       {"0;8000000000000000;a", "0;-8000000000000001;a", "0;10000000000000000;a", "0;;a", "0;+;a",
        "0;-;a", "0;+-1;a", "0;0x10;a", "0; 10;a", "0;10 ;a", "0;1g;a"}) {
    EXPECT_EQ(dateOf(bad), std::nullopt) << bad;
    EXPECT_TRUE(QuarantineInfo::parse(bad).has_value()) << bad;
  }
}

}  // namespace
}  // namespace tindra
