#include "base/json_writer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "base/json_reader.h"

namespace tindra {
namespace {

std::string written(const JSONValue& value) {
  return JSONWriter::write(value);
}

void expectRoundTrip(const JSONValue& value) {
  for (const std::string& text : {JSONWriter::write(value), JSONWriter::writePretty(value)}) {
    auto read = JSONReader::parse(text);
    ASSERT_TRUE(read.has_value()) << text << ": " << read.error().message();
    EXPECT_EQ(*read, value) << text;
  }
}

TEST(JSONWriterTest, WritesNumbersShortestAndIntegersWithoutFraction) {
  EXPECT_EQ(written(0), "0");
  EXPECT_EQ(written(-0.0), "-0");
  EXPECT_EQ(written(42), "42");
  EXPECT_EQ(written(-3.0), "-3");
  EXPECT_EQ(written(1700000000.0), "1700000000");
  EXPECT_EQ(written(9007199254740992.0), "9007199254740992");
  EXPECT_EQ(written(1e20), "1e+20");
  EXPECT_EQ(written(0.1), "0.1");
  EXPECT_EQ(written(1.0 / 3), "0.3333333333333333");
  EXPECT_EQ(written(5e-324), "5e-324");
  EXPECT_EQ(written(std::numeric_limits<double>::infinity()), "null");
  EXPECT_EQ(written(-std::numeric_limits<double>::infinity()), "null");
  EXPECT_EQ(written(std::nan("")), "null");
}

TEST(JSONWriterTest, EscapesOnlyQuotesBackslashesAndControlCharacters) {
  EXPECT_EQ(written("a\"b\\c/d"), R"("a\"b\\c/d")");
  EXPECT_EQ(written("\b\f\n\r\t"), R"("\b\f\n\r\t")");
  EXPECT_EQ(written(std::string("\0\x01\x1f\x7f", 4)), "\"\\u0000\\u0001\\u001f\x7f\"");
  EXPECT_EQ(written("é😀\xE2\x80\xA8"), "\"é😀\xE2\x80\xA8\"");
}

TEST(JSONWriterTest, ReplacesIllFormedUTF8SoTheOutputStaysReadable) {
  EXPECT_EQ(written("a\xFF"
                    "b\xED\xA0\x80"),
            "\"a\xEF\xBF\xBD"
            "b\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\"");
  EXPECT_TRUE(JSONReader::parse(written("\xC3")).has_value());
}

TEST(JSONWriterTest, WritesContainersCompactAndPretty) {
  const JSONValue value(JSONValue::Object{
      {"b", JSONValue::Array{1, true, nullptr}},
      {"a", JSONValue::Object{}},
      {"c", JSONValue::Array{}},
      {"d", JSONValue::Object{{"x", "y"}}},
  });
  EXPECT_EQ(written(value), R"({"a":{},"b":[1,true,null],"c":[],"d":{"x":"y"}})");
  EXPECT_EQ(JSONWriter::writePretty(value),
            "{\n"
            "  \"a\": {},\n"
            "  \"b\": [\n"
            "    1,\n"
            "    true,\n"
            "    null\n"
            "  ],\n"
            "  \"c\": [],\n"
            "  \"d\": {\n"
            "    \"x\": \"y\"\n"
            "  }\n"
            "}");
  EXPECT_EQ(JSONWriter::writePretty(JSONValue("x")), "\"x\"");
}

TEST(JSONWriterTest, OutputReadsBackEqual) {
  expectRoundTrip(JSONValue());
  expectRoundTrip(JSONValue(JSONValue::Array{0.1, -1e-300, 1.7976931348623157e308, 4.9e-324,
                                             123456789.125, -9007199254740993.0, 1e16,
                                             std::string("\0\"\\\x1f\x7f é", 9), "😀", false}));
  expectRoundTrip(JSONValue(JSONValue::Object{
      {"", JSONValue::Object{{"\n\"key\"", JSONValue::Array{JSONValue::Array{}}}}},
      {"ключ", "значение"}}));
}

}  // namespace
}  // namespace tindra
