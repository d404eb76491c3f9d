#include "focus/focus_filter_state.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace tindra {
namespace {

std::string repeated(std::string_view piece, int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += piece;
  return text;
}

TEST(FocusFilterStateTest, NameBecomesOneTrimmedLine) {
  EXPECT_EQ(FocusFilterState::normalizedName("Deep\nWork\n"), "Deep Work");
  EXPECT_EQ(FocusFilterState::normalizedName("  Deep\r\nWork\t"), "Deep Work");
  // Each break is one space, so an empty line leaves two.
  EXPECT_EQ(FocusFilterState::normalizedName("a\n\nb"), "a  b");
  EXPECT_EQ(FocusFilterState::normalizedName("a\xE2\x80\xA8"
                                             "b\xC2\x85"
                                             "c\rd"),
            "a b c d");
  // Unicode white space (no-break and ideographic spaces) is trimmed too.
  EXPECT_EQ(FocusFilterState::normalizedName("\xC2\xA0Work\xE3\x80\x80"), "Work");
  EXPECT_EQ(FocusFilterState::normalizedName("\n \n"), "");
  EXPECT_EQ(FocusFilterState(true, std::nullopt, FocusSymbol::car, 5).name, "");
}

TEST(FocusFilterStateTest, NameKeepsFortyCharactersAPersonSees) {
  const std::string sixty = repeated("abcdefghij", 6);
  EXPECT_EQ(FocusFilterState::normalizedName(sixty), sixty.substr(0, 40));
  EXPECT_EQ(FocusFilterState::normalizedName(sixty.substr(0, 40)), sixty.substr(0, 40));
  EXPECT_EQ(FocusFilterState::normalizedName(sixty.substr(0, 41)), sixty.substr(0, 40));

  // "e" with a combining acute accent is one character of three bytes.
  const std::string accented = repeated("e\xCC\x81", 60);
  EXPECT_EQ(FocusFilterState::normalizedName(accented), repeated("e\xCC\x81", 40));
  // A family emoji (four people joined by ZWJ) and a flag each count as one.
  const std::string family =
      "\xF0\x9F\x91\xA8\xE2\x80\x8D\xF0\x9F\x91\xA9\xE2\x80\x8D"
      "\xF0\x9F\x91\xA7\xE2\x80\x8D\xF0\x9F\x91\xA6";
  const std::string flag = "\xF0\x9F\x87\xB3\xF0\x9F\x87\xB4";
  EXPECT_EQ(FocusFilterState::normalizedName(repeated(family, 39) + flag + family),
            repeated(family, 39) + flag);
  // Trimming happens before the cut: leading spaces do not use up the forty.
  EXPECT_EQ(FocusFilterState::normalizedName("   " + sixty), sixty.substr(0, 40));
  // The cut comes after the trim: a space in position 40 stays.
  const std::string spaced = repeated("x", 39) + " tail";
  EXPECT_EQ(FocusFilterState::normalizedName(spaced), repeated("x", 39) + " ");
}

TEST(FocusFilterStateTest, EncodesAndDecodesWithItsKeys) {
  const FocusFilterState state(true, "Deep Work", FocusSymbol::gamecontroller, 1700000000.25);
  EXPECT_EQ(state.encoded(), R"({"isActive":true,"name":"Deep Work","symbol":"gamecontroller",)"
                             R"("updatedAt":1700000000.25})");
  EXPECT_EQ(FocusFilterState::decode(state.encoded()), state);
  // Unknown members are ignored; a stored name that was never normalised is normalised on read.
  EXPECT_EQ(FocusFilterState::decode(R"({"extra":1,"isActive":false,"name":" A\nB ",)"
                                     R"("symbol":"bed","updatedAt":-3})"),
            FocusFilterState(false, "A B", FocusSymbol::bed, -3));
}

TEST(FocusFilterStateTest, AnyFaultReadsAsInactive) {
  const FocusFilterState inactive = FocusFilterState::inactive();
  EXPECT_EQ(inactive, FocusFilterState(false, "", FocusSymbol::moon, 0));
  const std::string good = R"({"isActive":true,"name":"Run","symbol":"figure","updatedAt":9})";
  ASSERT_NE(FocusFilterState::decode(good), inactive);
  for (const std::string_view text : {
           "",
           "not json",
           R"({"isActive":true,"name":"Run","symbol":"figure","updatedAt":9)",  // truncated
           R"({"isActive":true,"name":"Run","symbol":"rocket","updatedAt":9})",
           R"({"isActive":true,"name":"Run","symbol":"Moon","updatedAt":9})",
           R"({"isActive":true,"name":"Run","symbol":"figure"})",
           R"({"isActive":1,"name":"Run","symbol":"figure","updatedAt":9})",
           R"({"isActive":true,"name":null,"symbol":"figure","updatedAt":9})",
           R"({"isActive":true,"name":"Run","symbol":"figure","updatedAt":"9"})",
           R"([{"isActive":true,"name":"Run","symbol":"figure","updatedAt":9}])",
           "{\"isActive\":true,\"name\":\"R\xFFn\",\"symbol\":\"figure\",\"updatedAt\":9}",
       }) {
    EXPECT_EQ(FocusFilterState::decode(text), inactive) << text;
  }
  EXPECT_EQ(FocusFilterState::decode(std::nullopt), inactive);
  // A time JSON cannot carry is written as null and so reads back as inactive.
  EXPECT_EQ(FocusFilterState::decode(
                FocusFilterState(true, "x", FocusSymbol::car, std::nan("")).encoded()),
            inactive);
}

}  // namespace
}  // namespace tindra
