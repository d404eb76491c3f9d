#include "files/file_tray_stored_parser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace tindra {
namespace {

using Code = FileTrayStoredParser::ParseError::Code;

FileTray::Stored sample() {
  std::vector<std::uint8_t> everyByte;
  for (int byte = 0; byte < 256; ++byte) everyByte.push_back(static_cast<std::uint8_t>(byte));
  FileTray::Stored stored;
  stored.items.push_back(FileTrayItem{UUID::random(), everyByte, true, "Résumé \"final\".pdf",
                                      "/home/ana/Résumé.pdf", "com.adobe.pdf",
                                      1'763'848'105.123456789, std::nullopt, std::nullopt});
  stored.items.push_back(FileTrayItem{UUID::random(),
                                      {0},
                                      false,
                                      "clip.mov",
                                      "/home/ana/.local/share/tindra/file-tray/clip.mov",
                                      std::nullopt,
                                      0.1 + 0.2,
                                      2'000'000'000,
                                      "/media/clip.mov"});
  return stored;
}

TEST(FileTrayStoredParser, WrittenTrayReadsBackEqual) {
  const FileTray::Stored stored = sample();
  const auto parsed = FileTrayStoredParser::parse(FileTrayStoredParser::write(stored));
  ASSERT_TRUE(parsed.has_value());
  EXPECT_EQ(parsed->stored, stored);  // dates and ids bit for bit
  EXPECT_EQ(parsed->skippedItems, 0);
}

TEST(FileTrayStoredParser, RefusesWhatIsNotASavedTrayOfThisVersion) {
  EXPECT_EQ(FileTrayStoredParser::parse("{\"version\":1,\"items\":[").error().code, Code::notJSON);
  EXPECT_EQ(FileTrayStoredParser::parse("").error().code, Code::notJSON);
  for (const char* text :
       {R"([])", R"({"items":[]})", R"({"version":"1","items":[]})", R"({"version":0,"items":[]})",
        R"({"version":1.5,"items":[]})", R"({"version":1})", R"({"version":1,"items":{}})"}) {
    EXPECT_EQ(FileTrayStoredParser::parse(text).error().code, Code::notATray) << text;
  }
  EXPECT_EQ(FileTrayStoredParser::parse(R"({"version":2,"items":[]})").error(),
            (FileTrayStoredParser::ParseError{Code::newerVersion, 2}));
  // A newer version is refused even when its items look readable.
  std::string newer = FileTrayStoredParser::write(sample());
  newer.replace(newer.find("\"version\": 1"), 12, "\"version\": 1e300");
  EXPECT_EQ(FileTrayStoredParser::parse(newer).error().code, Code::newerVersion);
}

TEST(FileTrayStoredParser, SkipsItemsThatAreMalformedOrBreakTheRules) {
  const std::string good =
      R"({"id":"E621E1F8-C36C-495A-93FC-0C247A3E6E5F","bookmark":"0aFF","isSecurityScoped":false,)"
      R"("displayName":"a","path":"/a","addedAt":5,"contentType":null})";
  auto item = [](std::string_view replace, std::string_view with) {
    std::string text =
        R"({"id":"00000000-0000-4000-8000-000000000001","bookmark":"0a","isSecurityScoped":false,)"
        R"("displayName":"b","path":"/b","addedAt":5})";
    text.replace(text.find(replace), replace.size(), with);
    return text;
  };
  const std::vector<std::string> bad{
      item("\"path\":\"/b\"", "\"path\":\"b\""),            // relative
      item("\"bookmark\":\"0a\"", "\"bookmark\":\"\""),     // empty bookmark
      item("\"bookmark\":\"0a\"", "\"bookmark\":\"0a1\""),  // odd hex
      item("\"bookmark\":\"0a\"", "\"bookmark\":\"0g\""),   // not hex
      item("\"addedAt\":5", "\"addedAt\":\"5\""),           // wrong type
      item("\"addedAt\":5", "\"copiedBytes\":5"),           // missing date, half a copy
      item("\"addedAt\":5", "\"addedAt\":5,\"copiedBytes\":1.5,\"sourcePath\":\"/s\""),
      item("\"addedAt\":5", "\"addedAt\":5,\"copiedBytes\":-1,\"sourcePath\":\"/s\""),
      item("\"addedAt\":5", "\"addedAt\":5,\"copiedBytes\":1e17,\"sourcePath\":\"/s\""),
      item("\"isSecurityScoped\":false", "\"isSecurityScoped\":0"),
      "null",
      good,  // same id as the first: ambiguous for removal
  };
  std::string text = R"({"version":1,"items":[)" + good;
  for (const std::string& entry : bad) text += "," + entry;
  text += "," + item("\"addedAt\":5",
                     "\"addedAt\":5,\"copiedBytes\":9007199254740992,"
                     "\"sourcePath\":\"/s\",\"futureField\":[1]");
  text += "]}";

  const auto parsed = FileTrayStoredParser::parse(text);
  ASSERT_TRUE(parsed.has_value()) << text;
  EXPECT_EQ(parsed->skippedItems, static_cast<int>(bad.size()));
  ASSERT_EQ(parsed->stored.items.size(), 2u);
  EXPECT_EQ(parsed->stored.items[0].bookmark, (std::vector<std::uint8_t>{0x0A, 0xFF}));
  EXPECT_EQ(parsed->stored.items[0].contentType, std::nullopt);
  EXPECT_EQ(parsed->stored.items[1].copiedBytes, 9'007'199'254'740'992);
}

}  // namespace
}  // namespace tindra
