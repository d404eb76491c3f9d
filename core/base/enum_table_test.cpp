#include "base/enum_table.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

enum class Fruit { apple, pear, quince_ };
enum class Code { low = 1, high = 7 };

}  // namespace

template <>
struct EnumTable<Fruit> {
  static constexpr std::array cases{EnumCase{Fruit::apple, "apple"}, EnumCase{Fruit::pear, "pear"},
                                    EnumCase{Fruit::quince_, "quince", "quinceCase"}};
};

template <>
struct EnumTable<Code> {
  static constexpr std::array cases{EnumCase{Code::low, 1, "low"}, EnumCase{Code::high, 7, "high"}};
};

namespace {

TEST(EnumTableTest, RawNameFromRawAndAllCasesComeFromTheOneTable) {
  static_assert(rawValue(Fruit::pear) == "pear");
  static_assert(enumFromRaw<Fruit>("quince") == Fruit::quince_);
  static_assert(allCases<Fruit>() == std::array{Fruit::apple, Fruit::pear, Fruit::quince_});
  EXPECT_EQ(name(Fruit::quince_), "quinceCase");
  EXPECT_EQ(name(Fruit::apple), "apple");  // the raw value when no name is given
  EXPECT_EQ(enumFromRaw<Fruit>("Apple"), std::nullopt);
  EXPECT_EQ(enumFromRaw<Fruit>(""), std::nullopt);

  static_assert(rawValue(Code::high) == 7);
  EXPECT_EQ(enumFromRaw<Code>(1), Code::low);
  EXPECT_EQ(enumFromRaw<Code>(2), std::nullopt);
  EXPECT_EQ(name(Code::high), "high");
}

}  // namespace
}  // namespace tindra
