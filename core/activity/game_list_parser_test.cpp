#include "activity/game_list_parser.h"

#include <gtest/gtest.h>

#include <string>

namespace tindra {
namespace {

using List = std::vector<std::string>;

std::string identifierOfLength(std::size_t length) {
  return "a." + std::string(length - 2, 'b');
}

TEST(GameListParser, KeepsValidIdentifiersFirstSpellingFirst) {
  EXPECT_EQ(GameListParser::parse("com.Example.Game, com.example.game;foo  a..b bad/id com.x.y"),
            (List{"com.Example.Game", "com.x.y"}));
  EXPECT_EQ(GameListParser::parse(""), List{});
  EXPECT_EQ(GameListParser::parse(" ,;\n"), List{});
}

TEST(GameListParser, SplitsAtEveryKindOfWhiteSpace) {
  EXPECT_EQ(GameListParser::parse("\ta.b\r\nc.d\ve.f\fg.h\u00A0i.j\u2028k.l\u3000m.n\u0085o.p"),
            (List{"a.b", "c.d", "e.f", "g.h", "i.j", "k.l", "m.n", "o.p"}));
  // Other non-ASCII text stays in its piece and spoils it.
  EXPECT_EQ(GameListParser::parse("com.\u00E9.x com.\u200Bx.y \xE2\x80 \xFF a.b"), List{"a.b"});
}

TEST(GameListParser, ValidatesEachIdentifier) {
  for (const char* ok : {"a.b", "A-1.b_2.c", "0.0"}) {
    EXPECT_TRUE(GameListParser::isValidBundleIdentifier(ok)) << ok;
  }
  for (const char* bad : {"", "a", ".a", "a.", "a..b", "a.b/c", "a.b+c", "a b.c", "."}) {
    EXPECT_FALSE(GameListParser::isValidBundleIdentifier(bad)) << bad;
  }
  EXPECT_TRUE(GameListParser::isValidBundleIdentifier(identifierOfLength(255)));
  EXPECT_FALSE(GameListParser::isValidBundleIdentifier(identifierOfLength(256)));
}

TEST(GameListParser, StopsAfterTwoHundredEntries) {
  std::string text;
  for (int i = 0; i < 300; ++i) text += "com.game.g" + std::to_string(i) + "\n";
  const List parsed = GameListParser::parse(text);
  ASSERT_EQ(parsed.size(), 200u);
  EXPECT_EQ(parsed.front(), "com.game.g0");
  EXPECT_EQ(parsed.back(), "com.game.g199");
  // Repeats and invalid pieces do not use up places.
  std::string repeated = "x.y X.Y bad ";
  for (int i = 0; i < 199; ++i) repeated += "x.y a.b" + std::to_string(i) + " ";
  EXPECT_EQ(GameListParser::parse(repeated).back(), "a.b198");
}

}  // namespace
}  // namespace tindra
