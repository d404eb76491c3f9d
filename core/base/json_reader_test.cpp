#include "base/json_reader.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace tindra {
namespace {

using Code = JSONParseError::Code;

JSONValue parsed(std::string_view text) {
  auto result = JSONReader::parse(text);
  if (result.has_value()) return std::move(*result);
  ADD_FAILURE() << text << ": " << result.error().message();
  return JSONValue();
}

JSONParseError failure(std::string_view text, std::size_t maxDepth = JSONReader::defaultMaxDepth) {
  auto result = JSONReader::parse(text, maxDepth);
  EXPECT_FALSE(result.has_value()) << text;
  return result.has_value() ? JSONParseError{Code::unexpectedEnd, 999999} : result.error();
}

std::string nested(std::size_t depth) {
  return std::string(depth, '[') + std::string(depth, ']');
}

TEST(JSONReaderTest, ReadsEveryKindOfValue) {
  EXPECT_EQ(parsed("null"), JSONValue());
  EXPECT_EQ(parsed(" true "), JSONValue(true));
  EXPECT_EQ(parsed("false"), JSONValue(false));
  EXPECT_EQ(parsed("\t\r\n\"x\"\n"), JSONValue("x"));
  EXPECT_EQ(parsed("[]"), JSONValue(JSONValue::Array{}));
  EXPECT_EQ(parsed("{ }"), JSONValue(JSONValue::Object{}));
  EXPECT_EQ(parsed(R"({"b":[1,{"c":null}],"a":"z"})"),
            JSONValue(JSONValue::Object{
                {"a", "z"}, {"b", JSONValue::Array{1, JSONValue::Object{{"c", nullptr}}}}}));
}

TEST(JSONReaderTest, LastOfRepeatedNamesWins) {
  EXPECT_EQ(parsed(R"({"a":1,"b":2,"a":3})"), JSONValue(JSONValue::Object{{"a", 3}, {"b", 2}}));
  EXPECT_EQ(parsed(R"({"b":{"x":1},"a":0,"b":[]})"),
            JSONValue(JSONValue::Object{{"a", 0}, {"b", JSONValue::Array{}}}));
  EXPECT_EQ(parsed(R"({"\u0061":1,"a":2})"), JSONValue(JSONValue::Object{{"a", 2}}));
}

TEST(JSONReaderTest, EscapedNamesSurviveTheNamesInsideTheirValue) {
  EXPECT_EQ(
      parsed(R"({"z\u0061":{"\u0063d":{"\u0065":1}},"b\n":[{"\u0066":2}]})"),
      JSONValue(JSONValue::Object{{"za", JSONValue::Object{{"cd", JSONValue::Object{{"e", 1}}}}},
                                  {"b\n", JSONValue::Array{JSONValue::Object{{"f", 2}}}}}));
}

TEST(JSONReaderTest, NumbersFollowTheGrammar) {
  EXPECT_EQ(parsed("0"), JSONValue(0));
  EXPECT_TRUE(std::signbit(*parsed("-0").asNumber()));
  EXPECT_EQ(parsed("-12.5e2"), JSONValue(-1250.0));
  EXPECT_EQ(parsed("1E+2"), JSONValue(100.0));
  EXPECT_EQ(parsed("0.1"), JSONValue(0.1));
  EXPECT_EQ(parsed("9007199254740993"), JSONValue(9007199254740992.0));  // nearest double
  EXPECT_EQ(parsed("1.7976931348623157e308"), JSONValue(1.7976931348623157e308));

  EXPECT_EQ(failure("01"), (JSONParseError{Code::invalidNumber, 1}));
  EXPECT_EQ(failure("-"), (JSONParseError{Code::invalidNumber, 1}));
  EXPECT_EQ(failure("-x"), (JSONParseError{Code::invalidNumber, 1}));
  EXPECT_EQ(failure("[1.]"), (JSONParseError{Code::invalidNumber, 3}));
  EXPECT_EQ(failure("1e"), (JSONParseError{Code::invalidNumber, 2}));
  EXPECT_EQ(failure("1e+"), (JSONParseError{Code::invalidNumber, 3}));
  EXPECT_EQ(failure(".5"), (JSONParseError{Code::unexpectedCharacter, 0}));
  EXPECT_EQ(failure("+1"), (JSONParseError{Code::unexpectedCharacter, 0}));
  EXPECT_EQ(failure("Infinity"), (JSONParseError{Code::unexpectedCharacter, 0}));
  EXPECT_EQ(failure("0x10"), (JSONParseError{Code::trailingContent, 1}));
}

// Short numbers take a quicker road than from_chars; both must round to the same double.
TEST(JSONReaderTest, NumbersReadAsTheNearestDouble) {
  std::vector<std::string> texts = {"0.1",
                                    "0.3",
                                    "4.35",
                                    "123456789012345",
                                    "1234567890123456",
                                    "9007199254740993",
                                    "1e22",
                                    "1e23",
                                    "1.5e-22",
                                    "1e-23",
                                    "-0.0e1",
                                    "123.456e-5",
                                    "2.2250738585072014e-308",
                                    "7e+2",
                                    "0.000000000000000000001",
                                    "999999999999999e22",
                                    "1e-0"};
  std::uint64_t state = 12345;
  for (int i = 0; i < 20000; ++i) {
    state = state * 6364136223846793005ULL + 1442695040888963407ULL;
    const unsigned digits = 1 + (state >> 60);  // 1 to 16
    const unsigned point = (state >> 40) % (digits + 1);
    const int exponent = static_cast<int>((state >> 20) % 61) - 30;
    std::string text = std::to_string((state >> 1) % 10000000000000000ULL + 1).substr(0, digits);
    if (point > 0 && point < text.size()) text.insert(point, ".");
    texts.push_back(text + "e" + std::to_string(exponent));
  }
  for (const std::string& text : texts) {
    double expected = 0;
    std::from_chars(text.data(), text.data() + text.size(), expected);
    EXPECT_EQ(parsed(text), JSONValue(expected)) << text;
  }
}

TEST(JSONReaderTest, TooLargeNumbersFailAndTooSmallOnesBecomeZero) {
  EXPECT_EQ(failure("[1.8e308]"), (JSONParseError{Code::numberOutOfRange, 1}));
  EXPECT_EQ(failure("-1e400"), (JSONParseError{Code::numberOutOfRange, 0}));
  EXPECT_EQ(failure("0.01e311"), (JSONParseError{Code::numberOutOfRange, 0}));
  EXPECT_EQ(parsed("0.001e309"), JSONValue(1e306));
  EXPECT_EQ(failure(std::string(400, '9')).code, Code::numberOutOfRange);
  EXPECT_EQ(failure("1e99999999999999999999999").code, Code::numberOutOfRange);

  EXPECT_EQ(parsed("1e-400"), JSONValue(0.0));
  EXPECT_TRUE(std::signbit(*parsed("-1e-400").asNumber()));
  EXPECT_EQ(parsed("0.0000001e-330"), JSONValue(0.0));
  EXPECT_EQ(parsed("1000e-326"), JSONValue(1e-323));  // subnormal, still representable
  EXPECT_EQ(parsed("0e99999"), JSONValue(0.0));
}

TEST(JSONReaderTest, DecodesEscapes) {
  EXPECT_EQ(parsed(R"("\"\\\/\b\f\n\r\t")"), JSONValue("\"\\/\b\f\n\r\t"));
  EXPECT_EQ(parsed(R"("a\u0000b")"), JSONValue(std::string("a\0b", 3)));
  EXPECT_EQ(parsed(R"("\u00e9\u20AC")"), JSONValue("é€"));
  EXPECT_EQ(parsed(R"("\uD83D\uDE00!")"), JSONValue("😀!"));
  EXPECT_EQ(parsed(R"("\uDBFF\uDFFF")"), JSONValue("\xF4\x8F\xBF\xBF"));

  EXPECT_EQ(failure(R"("ab\x")"), (JSONParseError{Code::invalidEscape, 3}));
  EXPECT_EQ(failure(R"("\u12G4")"), (JSONParseError{Code::invalidEscape, 1}));
  EXPECT_EQ(failure(R"("\u12)"), (JSONParseError{Code::unexpectedEnd, 5}));
  EXPECT_EQ(failure(R"("\)"), (JSONParseError{Code::unexpectedEnd, 2}));
}

TEST(JSONReaderTest, RejectsLoneAndMismatchedSurrogatesAtTheFirstEscape) {
  EXPECT_EQ(failure(R"(["\uDC00"])"), (JSONParseError{Code::invalidEscape, 2}));
  EXPECT_EQ(failure(R"("x\uD800")"), (JSONParseError{Code::invalidEscape, 2}));
  EXPECT_EQ(failure(R"("\uD800x")"), (JSONParseError{Code::invalidEscape, 1}));
  EXPECT_EQ(failure(R"("\uD800\n")"), (JSONParseError{Code::invalidEscape, 1}));
  EXPECT_EQ(failure(R"("\uD800\uD800")"), (JSONParseError{Code::invalidEscape, 1}));
  EXPECT_EQ(failure(R"("\uD800\uE000")"), (JSONParseError{Code::invalidEscape, 1}));
  EXPECT_EQ(failure(R"("\uD800\u00")"), (JSONParseError{Code::invalidEscape, 7}));
}

TEST(JSONReaderTest, AcceptsWellFormedUTF8AtEveryBoundary) {
  for (const char* text : {"\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
                           "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"}) {
    const std::string quoted = "\"" + std::string(text) + "\"";
    EXPECT_EQ(parsed(quoted), JSONValue(text)) << quoted;
  }
}

TEST(JSONReaderTest, RejectsIllFormedUTF8AtItsFirstByte) {
  const std::vector<std::pair<std::string, const char*>> faults = {
      {"\x80", "stray continuation byte"},
      {"\xC0\xAF", "overlong slash"},
      {"\xC1\xBF", "overlong two-byte form"},
      {"\xE0\x9F\xBF", "overlong three-byte form"},
      {"\xF0\x8F\xBF\xBF", "overlong four-byte form"},
      {"\xED\xA0\x80", "encoded high surrogate"},
      {"\xED\xBF\xBF", "encoded low surrogate"},
      {"\xF4\x90\x80\x80", "beyond U+10FFFF"},
      {"\xF5\x80\x80\x80", "lead byte F5"},
      {"\xFF", "byte FF"},
      {"\xC3(", "missing continuation"},
      {"\xE2\x82", "sequence cut short by the quote"},
  };
  for (const auto& [bytes, what] : faults) {
    // Long enough that the fault sits past the first 64 bytes the fast scanner takes at once.
    const std::string prefix(70, 'a');
    EXPECT_EQ(failure("\"é" + prefix + bytes + "\""), (JSONParseError{Code::invalidUTF8, 73}))
        << what;
  }
  EXPECT_EQ(failure("\"\xE2\x82"), (JSONParseError{Code::invalidUTF8, 1}));
  EXPECT_EQ(failure("\xC3\xA9"), (JSONParseError{Code::unexpectedCharacter, 0}));
  EXPECT_EQ(failure("\xEF\xBB\xBF{}"), (JSONParseError{Code::unexpectedCharacter, 0}));  // BOM
}

TEST(JSONReaderTest, FindsTheEndOfStringsAtEveryAlignment) {
  for (std::size_t length = 0; length < 140; ++length) {
    const std::string body(length, 'x');
    EXPECT_EQ(parsed("\"" + body + "\""), JSONValue(body));
    EXPECT_EQ(failure("\"" + body + "\\q\""), (JSONParseError{Code::invalidEscape, length + 1}));
    EXPECT_EQ(failure("\"" + body + "\x1f\""),
              (JSONParseError{Code::controlCharacter, length + 1}));
    EXPECT_EQ(failure("\"" + body + "\x7f"), (JSONParseError{Code::unexpectedEnd, length + 2}));
  }
}

TEST(JSONReaderTest, ReportsStructuralFaultsWithTheirOffset) {
  EXPECT_EQ(failure(""), (JSONParseError{Code::unexpectedEnd, 0}));
  EXPECT_EQ(failure("  "), (JSONParseError{Code::unexpectedEnd, 2}));
  EXPECT_EQ(failure("[1,2"), (JSONParseError{Code::unexpectedEnd, 4}));
  EXPECT_EQ(failure("[1,]"), (JSONParseError{Code::unexpectedCharacter, 3}));
  EXPECT_EQ(failure("[,1]"), (JSONParseError{Code::unexpectedCharacter, 1}));
  EXPECT_EQ(failure("[1 2]"), (JSONParseError{Code::unexpectedCharacter, 3}));
  EXPECT_EQ(failure(R"({"a":1,})"), (JSONParseError{Code::unexpectedCharacter, 7}));
  EXPECT_EQ(failure(R"({"a" 1})"), (JSONParseError{Code::unexpectedCharacter, 5}));
  EXPECT_EQ(failure(R"({a:1})"), (JSONParseError{Code::unexpectedCharacter, 1}));
  EXPECT_EQ(failure(R"({"a":})"), (JSONParseError{Code::unexpectedCharacter, 5}));
  EXPECT_EQ(failure(R"({"a")"), (JSONParseError{Code::unexpectedEnd, 4}));
  EXPECT_EQ(failure("tru"), (JSONParseError{Code::unexpectedEnd, 3}));
  EXPECT_EQ(failure("nul1"), (JSONParseError{Code::unexpectedCharacter, 3}));
  EXPECT_EQ(failure("[True]"), (JSONParseError{Code::unexpectedCharacter, 1}));
  EXPECT_EQ(failure("\"a\nb\""), (JSONParseError{Code::controlCharacter, 2}));
  EXPECT_EQ(failure("[1]//"), (JSONParseError{Code::trailingContent, 3}));
  EXPECT_EQ(failure("{} {}"), (JSONParseError{Code::trailingContent, 3}));
  EXPECT_EQ(failure("1\f"), (JSONParseError{Code::trailingContent, 1}));  // not JSON white space
  EXPECT_EQ(failure("\v1"), (JSONParseError{Code::unexpectedCharacter, 0}));
  EXPECT_EQ(failure("\xA0"
                    "1"),
            (JSONParseError{Code::unexpectedCharacter, 0}));
}

TEST(JSONReaderTest, LimitsNestingDepthExactly) {
  EXPECT_TRUE(JSONReader::parse(nested(512)).has_value());
  EXPECT_EQ(failure(nested(513)), (JSONParseError{Code::tooDeep, 512}));
  EXPECT_EQ(failure("[{\"a\":[]}]", 2), (JSONParseError{Code::tooDeep, 6}));
  EXPECT_TRUE(JSONReader::parse("[{\"a\":[]}]", 3).has_value());
  EXPECT_TRUE(JSONReader::parse("7", 0).has_value());
  EXPECT_EQ(failure("{}", 0), (JSONParseError{Code::tooDeep, 0}));
  // Hostile input far past the limit fails quickly instead of exhausting the stack.
  EXPECT_EQ(failure(std::string(1'000'000, '[')).code, Code::tooDeep);
}

TEST(JSONReaderTest, MessageNamesTheByte) {
  EXPECT_EQ((JSONParseError{Code::trailingContent, 12}).message(),
            "invalid JSON at byte 12: unexpected text after the value");
}

}  // namespace
}  // namespace tindra
