#include "hud/objc_type_encoding.h"

#include <gtest/gtest.h>

#include "hud/objc_method_shape.h"

namespace tindra {
namespace {

using Codes = std::vector<std::string>;

TEST(ObjCTypeEncoding, SplitsPositionsAndDropsOffsets) {
  EXPECT_EQ(ObjCTypeEncoding::parse("B28@0:8f16Q20"), (Codes{"B", "@", ":", "f", "Q"}));
  EXPECT_EQ(ObjCTypeEncoding::parse("v@:"), (Codes{"v", "@", ":"}));
  // Offsets may be negative (arguments passed in registers on old runtimes).
  EXPECT_EQ(ObjCTypeEncoding::parse("c24@0:8q-4"), (Codes{"c", "@", ":", "q"}));
  EXPECT_EQ(ObjCTypeEncoding::parse("@\"NSArray\"16@0:8"), (Codes{"@", "@", ":"}));
  EXPECT_EQ(ObjCTypeEncoding::parse("@?16@0:8"), (Codes{"@?", "@", ":"}));
  EXPECT_EQ(ObjCTypeEncoding::parse("r*24@0:8^^Q16"), (Codes{"r*", "@", ":", "^^Q"}));
}

TEST(ObjCTypeEncoding, KeepsAggregatesWhole) {
  EXPECT_EQ(ObjCTypeEncoding::parse("{CGRect={CGPoint=dd}{CGSize=dd}}16@0:8"),
            (Codes{"{CGRect={CGPoint=dd}{CGSize=dd}}", "@", ":"}));
  EXPECT_EQ(ObjCTypeEncoding::parse("v32@0:8^{Pair=\"a}\"i\"b\"[4(U=if)]}16[2{S=c}]24"),
            (Codes{"v", "@", ":", "^{Pair=\"a}\"i\"b\"[4(U=if)]}", "[2{S=c}]"}));
}

TEST(ObjCTypeEncoding, RejectsMalformed) {
  for (const char* bad : {"", "24", "-", "v24@0:8-", "v-x", "x@:", "v@:^", "@\"NSArray",
                          "{CGPoint=dd", "{CGPoint=dd]", "[4i)", "}", "v@:b4", "v @:", "{S=\"x}"}) {
    EXPECT_EQ(ObjCTypeEncoding::parse(bad), std::nullopt) << bad;
  }
}

TEST(ObjCMethodShape, ExpectedShapesAcceptNaturalSignaturesOnly) {
  const auto ids = ObjCMethodShape::copyKeyboardBacklightIDs();
  EXPECT_TRUE(ids.matches("@16@0:8"));
  EXPECT_TRUE(ids.matches("@\"NSArray\"16@0:8"));
  EXPECT_TRUE(ids.matches("^Q16@0:8"));
  EXPECT_FALSE(ids.matches("Q16@0:8"));
  EXPECT_FALSE(ids.matches("@24@0:8Q16"));

  const auto builtIn = ObjCMethodShape::isKeyboardBuiltIn();
  EXPECT_TRUE(builtIn.matches("B24@0:8Q16"));
  EXPECT_TRUE(builtIn.matches("c24@0:8q16"));
  EXPECT_FALSE(builtIn.matches("B20@0:8I16"));  // a 32-bit identifier would be cut short
  EXPECT_FALSE(builtIn.matches("B16@0:8"));

  const auto read = ObjCMethodShape::brightnessForKeyboard();
  EXPECT_TRUE(read.matches("f24@0:8Q16"));
  EXPECT_FALSE(read.matches("d24@0:8Q16"));  // a double comes back in another register width
  EXPECT_FALSE(read.matches("@24@0:8Q16"));

  const auto write = ObjCMethodShape::setBrightnessForKeyboard();
  EXPECT_TRUE(write.matches("B28@0:8f16Q20"));
  EXPECT_TRUE(write.matches("c28@0:8f16L20"));
  EXPECT_FALSE(write.matches("v28@0:8f16Q20"));
  EXPECT_FALSE(write.matches("B28@0:8Q16f24"));  // arguments swapped
  EXPECT_FALSE(write.matches("B36@0:8f16Q20@28"));
  EXPECT_TRUE(write.matches("B@:fQ"));
  EXPECT_FALSE(write.matches("B28@0:8f16Q20x"));  // unparsable tail
}

}  // namespace
}  // namespace tindra
