#include "nowplaying/adapter_message_parser.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "base/base64.h"

namespace tindra {
namespace {

using Parser = AdapterMessageParser;
using ParseError = Parser::ParseError;

const std::string playingLine = R"({"type":"data","payload":{"title":"A","playing":true}})";

std::string message(std::string_view payload, bool diff = false) {
  return std::string(R"({"type":"data","diff":)") + (diff ? "true" : "false") +
         ",\"payload\":" + std::string(payload) + "}";
}

NowPlayingSnapshot snapshotOf(const Parser::Result& result) {
  EXPECT_TRUE(result.has_value() && result->has_value());
  return result.value_or(std::nullopt).value_or(NowPlayingSnapshot{});
}

NowPlayingSnapshot parsed(std::string_view payload) {
  Parser parser;
  return snapshotOf(parser.parse(message(payload)));
}

ParseError errorOf(const Parser::Result& result) {
  EXPECT_FALSE(result.has_value());
  return result.has_value() ? ParseError::notJSONObject() : result.error();
}

std::string cover(std::size_t bytes) {
  std::vector<std::uint8_t> image(bytes);
  for (std::size_t i = 0; i < bytes; ++i) image[i] = static_cast<std::uint8_t>(i * 31 + 7);
  return encodeBase64(image);
}

TEST(AdapterMessageParserTest, LinesAreParsedWhenTheirNewlineArrives) {
  Parser parser;
  const std::string line = playingLine + "\n";
  EXPECT_TRUE(parser.feed(line.substr(0, 10)).empty());
  EXPECT_EQ(parser.buffer(), line.substr(0, 10));
  auto results = parser.feed(line.substr(10));
  ASSERT_EQ(results.size(), 1u);
  EXPECT_EQ(snapshotOf(results[0]).title, "A");
  EXPECT_TRUE(parser.buffer().empty());

  results = parser.feed(R"({"type":"status"})"
                        "\n\n" +
                        line + "[]\r\n" + "{\"type\"");
  ASSERT_EQ(results.size(), 4u);
  EXPECT_EQ(errorOf(results[0]), ParseError::unexpectedType("status"));
  EXPECT_EQ(errorOf(results[1]), ParseError::notJSONObject()) << "an empty line is a line";
  EXPECT_EQ(snapshotOf(results[2]).title, "A");
  EXPECT_EQ(errorOf(results[3]), ParseError::notJSONObject());
  EXPECT_EQ(parser.buffer(), "{\"type\"");
  EXPECT_EQ(parser.messageCount(), 2);
}

TEST(AdapterMessageParserTest, LineLimitIsExactAndAnOverlongLineIsReportedOnce) {
  const std::size_t limit = Parser::maxLineLength;
  std::string exact = playingLine + std::string(limit - playingLine.size(), ' ');
  ASSERT_EQ(exact.size(), limit);
  Parser parser;
  auto results = parser.feed(exact + "\n");
  ASSERT_EQ(results.size(), 1u);
  EXPECT_TRUE(results[0].has_value()) << "exactly the limit is allowed";

  // One past, arriving in pieces: reported when it first exceeds, silent at its newline.
  EXPECT_TRUE(parser.feed(exact).empty());
  results = parser.feed(" ");
  ASSERT_EQ(results.size(), 1u);
  EXPECT_EQ(errorOf(results[0]), ParseError::lineTooLong());
  EXPECT_TRUE(parser.discardingOversizedLine());
  EXPECT_EQ(parser.buffer().capacity(), std::string().capacity()) << "memory is given back";
  EXPECT_TRUE(parser.feed(std::string(1000, 'x')).empty());
  results = parser.feed("tail\n" + playingLine + "\n");
  ASSERT_EQ(results.size(), 1u);
  EXPECT_EQ(snapshotOf(results[0]).title, "A");

  // A long line that arrived in pieces leaves no long buffer behind once read.
  const std::string padded = playingLine + std::string(200'000, ' ');
  EXPECT_TRUE(parser.feed(std::string_view(padded).substr(0, 100'000)).empty());
  ASSERT_EQ(parser.feed(std::string_view(padded).substr(100'000)).size(), 0u);
  ASSERT_EQ(parser.feed("\n").size(), 1u);
  EXPECT_LE(parser.buffer().capacity(), 64u * 1024) << "a cover's line is not kept";
  EXPECT_FALSE(parser.discardingOversizedLine());

  // One past with its newline in the same read: one error, and the next line still parses.
  results = parser.feed(exact + " \n" + playingLine + "\n");
  ASSERT_EQ(results.size(), 2u);
  EXPECT_EQ(errorOf(results[0]), ParseError::lineTooLong());
  EXPECT_TRUE(results[1].has_value());
  EXPECT_FALSE(parser.discardingOversizedLine());
}

TEST(AdapterMessageParserTest, DiffsMergeAndRemoveWhileFullMessagesReplace) {
  Parser parser;
  snapshotOf(
      parser.parse(R"({"type":"data","payload":{"title":"A","playing":true},"diff":false})"));
  NowPlayingSnapshot s = snapshotOf(parser.parse(message(R"({"artist":"B"})", true)));
  EXPECT_EQ(s.title, "A");
  EXPECT_EQ(s.artist, "B");
  s = snapshotOf(parser.parse(message(R"({"artist":null,"album":"C"})", true)));
  EXPECT_FALSE(s.artist);
  EXPECT_EQ(s.album, "C");
  EXPECT_FALSE(parser.state().contains("artist"));

  // Only the boolean true merges; a full message forgets what it does not carry.
  s = snapshotOf(
      parser.parse(R"({"type":"data","diff":"true","payload":{"title":"D","playing":false}})"));
  EXPECT_FALSE(s.album);
  EXPECT_EQ(parser.state().size(), 2u);

  // A diff that removes the title reports nothing playing; one that restores it recovers.
  EXPECT_EQ(parser.parse(message(R"({"title":null})", true)), Parser::Result(std::nullopt));
  EXPECT_EQ(snapshotOf(parser.parse(message(R"({"title":"E"})", true))).title, "E");
  EXPECT_EQ(parser.messageCount(), 6);
}

TEST(AdapterMessageParserTest, RefusedMessagesLeaveTheStateAlone) {
  Parser parser;
  parser.parse(playingLine);
  const JSONValue::Object before = parser.state();
  EXPECT_EQ(errorOf(parser.parse("[]")), ParseError::notJSONObject());
  EXPECT_EQ(errorOf(parser.parse("{\"type\":\"data\",")), ParseError::notJSONObject());
  EXPECT_EQ(errorOf(parser.parse("nonsense")), ParseError::notJSONObject());
  EXPECT_EQ(errorOf(parser.parse(R"({"payload":{}})")), ParseError::unexpectedType(std::nullopt));
  EXPECT_EQ(errorOf(parser.parse(R"({"type":7,"payload":{}})")),
            ParseError::unexpectedType(std::nullopt));
  EXPECT_EQ(errorOf(parser.parse(R"({"type":"Data","payload":{}})")),
            ParseError::unexpectedType("Data"));
  EXPECT_EQ(errorOf(parser.parse(R"({"type":"data"})")), ParseError::missingPayload());
  EXPECT_EQ(errorOf(parser.parse(R"({"type":"data","payload":[]})")), ParseError::missingPayload());
  EXPECT_EQ(errorOf(parser.parse(R"({"type":"data","payload":null,"diff":true})")),
            ParseError::missingPayload());
  EXPECT_EQ(parser.state(), before);
  EXPECT_EQ(parser.messageCount(), 1);
  EXPECT_EQ(ParseError::unexpectedType("x").description(), "unexpected type \"x\"");
}

TEST(AdapterMessageParserTest, ArtworkIsRecomputedOnlyWhenItsKeyArrives) {
  Parser parser;
  const std::string image = cover(5);
  const std::string full = R"({"title":"A","playing":true,"artworkData":")" + image + "\"}";
  NowPlayingSnapshot s = snapshotOf(parser.parse(message(full)));
  ASSERT_TRUE(s.artwork);
  EXPECT_TRUE(std::ranges::equal(*s.artwork->embeddedBytes(), decodeBase64(image).value()));

  EXPECT_EQ(snapshotOf(parser.parse(message(R"({"artist":"B"})", true))).artwork, s.artwork);
  EXPECT_EQ(snapshotOf(parser.parse(message("{}", true))).artwork, s.artwork);
  EXPECT_FALSE(snapshotOf(parser.parse(message(R"({"artworkData":null})", true))).artwork);
  snapshotOf(parser.parse(message(full)));
  EXPECT_FALSE(snapshotOf(parser.parse(message(R"({"artworkData":"not base64"})", true))).artwork);
  snapshotOf(parser.parse(message(full)));
  EXPECT_FALSE(snapshotOf(parser.parse(message(R"({"title":"A","playing":true})"))).artwork)
      << "a full message without a cover clears it";

  // Bad covers: empty, unpadded, white space, URL-safe letters, not a string.
  for (const char* text : {R"("")", R"("TQ")", R"("TQ== ")", R"("-_==")", "12", R"(["TQ=="])"}) {
    Parser fresh;
    const std::string payload =
        std::string(R"({"title":"A","playing":true,"artworkData":)") + text + "}";
    EXPECT_FALSE(snapshotOf(fresh.parse(message(payload))).artwork) << text;
  }
}

TEST(AdapterMessageParserTest, CapabilitiesNarrowOnlyWhenTheAdapterNamesThem) {
  Parser parser;
  EXPECT_EQ(snapshotOf(parser.parse(playingLine)).capabilities.rawValue, 63)
      << "an adapter that says nothing grants every command";
  const NowPlayingCapabilities skipOnly{NowPlayingCapabilities::nextTrackBit |
                                        NowPlayingCapabilities::playPauseBit};
  EXPECT_EQ(snapshotOf(parser.parse(message(R"({"capabilities":3})", true))).capabilities,
            skipOnly);
  EXPECT_EQ(snapshotOf(parser.parse(message(R"({"capabilities":0})", true))).capabilities.rawValue,
            0)
      << "a player that takes no command";
  EXPECT_EQ(snapshotOf(parser.parse(message(R"({"capabilities":null})", true))).capabilities,
            NowPlayingCapabilities::all());
  // Nonsense is not a narrowing: fractions, negatives, unknown bits, text.
  for (const char* raw : {"2.5", "-1", "64", "1e300", R"("3")", "true"}) {
    const std::string payload =
        std::string(R"({"title":"A","playing":true,"capabilities":)") + raw + "}";
    EXPECT_EQ(parsed(payload).capabilities, NowPlayingCapabilities::all()) << raw;
  }
}

TEST(AdapterMessageParserTest, ACoverAddressStandsInOnlyForMissingBytes) {
  Parser parser;
  const std::string image = cover(5);
  const std::string both =
      R"({"title":"A","playing":true,"artworkURL":"https://i.scdn.co/image/x",)"
      R"("artworkData":")" +
      image + "\"}";
  EXPECT_TRUE(snapshotOf(parser.parse(message(both))).artwork->embeddedBytes());
  const NowPlayingSnapshot addressOnly =
      snapshotOf(parser.parse(message(R"({"artworkData":null})", true)));
  ASSERT_TRUE(addressOnly.artwork);
  EXPECT_EQ(*addressOnly.artwork->remoteURL(), "https://i.scdn.co/image/x");
  EXPECT_EQ(
      *snapshotOf(parser.parse(message(R"({"artworkURL":"https://i.scdn.co/image/y"})", true)))
           .artwork->remoteURL(),
      "https://i.scdn.co/image/y");
  EXPECT_FALSE(snapshotOf(parser.parse(message(R"({"artworkURL":""})", true))).artwork);
  const std::string huge = R"({"artworkURL":"https://i.scdn.co/)" +
                           std::string(Parser::maxArtworkURLLength, 'a') + "\"}";
  EXPECT_FALSE(snapshotOf(parser.parse(message(huge, true))).artwork);
}

TEST(AdapterMessageParserTest, CoverTextMustBeShorterThanTheLimit) {
  const std::size_t limit = Parser::artworkTextLimit;
  ASSERT_EQ(limit % 4, 0u);
  for (std::size_t threshold : {std::size_t{0}, std::numeric_limits<std::size_t>::max()}) {
    Parser parser({threshold, threshold == 0});
    const std::string longest = cover((limit - 4) / 4 * 3);
    auto payload = R"({"title":"A","playing":true,"artworkData":")" + longest + "\"}";
    NowPlayingSnapshot s = snapshotOf(parser.parse(message(payload)));
    ASSERT_TRUE(s.artwork) << threshold;
    EXPECT_EQ(s.artwork->embeddedBytes()->size(), (limit - 4) / 4 * 3);

    payload = R"({"title":"A","playing":true,"artworkData":")" + cover(limit / 4 * 3) + "\"}";
    EXPECT_FALSE(snapshotOf(parser.parse(message(payload))).artwork) << threshold;
    EXPECT_EQ(parser.state().at("artworkData").asString()->size(), limit);
  }
}

TEST(AdapterMessageParserTest, ShortcutsAgreeWithTheJSONTree) {
  const std::string image = cover(100);
  const std::vector<std::string> lines = {
      message(R"({"title":"A","playing":true,"artworkData":")" + image + "\"}"),
      message(R"({"artworkData" : ")" + image + R"(" , "title":"A","playing":true})"),
      message(R"({"artworkData":")" + image + R"(","artworkData":"TQ==","title":"A","playing":1})"),
      message(R"({"artwork\u0044ata":")" + image + R"(","title":"A","playing":true})"),
      R"({"type":"data","payload":{"artworkData":")" + image + R"("},"payload":{"title":"B"}})",
      R"({"type":"data","payload":{"x":{"artworkData":")" + image + R"("}}})",
      R"({"type":"data","payload":{"artworkData":")" + image + R"(" "extra"}})",
      R"({"type":"data","payload":{"artworkData":")" + image + R"(\"", "title":"A"}})",
      R"({"type":"data","s":"\\","payload":{"artworkData":")" + image + R"("}})",
      R"({"type":"data","s":"\"payload\":{\"artworkData\":\"TQ==\"}","payload":{}})",
      R"({"type":"data","payload":{"artworkData":")" + image + R"("}} trailing)",
      R"({"type":"data","payload":{"artworkData":")" + image,
      message(R"({"title":"Bj\u00f6rk","playing":true,"duration":1e400})"),
      message(R"({"title":"Björk","playing":true,"duration":1e-400,"elapsedTime":-0})"),
      message(R"({"title":"A","playing":true,"title":"B","n":[1],"o":{}})"),
      message(R"({"title":"A","playing":true,"duration":01})"),
      message(R"({"title":"A","playing":true,"duration":1.5E+2,"elapsedTime":2.})"),
      message(R"({"title":"A\tB","playing":true})"),
      R"( { "type" : "data" , "payload" : { "title" : "A" , "playing" : true } } )",
      R"({"type":"data","payload":{"title":"A","playing":true}}x)",
      R"({"type":"data","payload":{"title":"A","playing":true},"type":"data"})",
      R"({"type":"data","payload":5})",
      R"({"type":"data","payload":{"title":"A","playing":tru}})",
      R"({"type":"data","diff":true,"payload":{"title":null,"x":null}})",
      "{\"type\":\"data\",\"payload\":{\"title\":\"A\x01\",\"playing\":true}}",
  };
  for (const std::string& line : lines) {
    Parser direct({.directArtworkThreshold = 0});
    Parser tree({std::numeric_limits<std::size_t>::max(), false});
    for (Parser* parser : {&direct, &tree}) {
      parser->parse(R"({"type":"data","payload":{"title":"Z","playing":true,"x":1}})");
    }
    EXPECT_EQ(direct.parse(line), tree.parse(line)) << line;
    EXPECT_EQ(direct.state(), tree.state()) << line;
    EXPECT_EQ(direct.artwork(), tree.artwork()) << line;
  }
}

TEST(AdapterMessageParserTest, FieldsFallBackAndStayWithinSevenDays) {
  NowPlayingSnapshot s = parsed(
      R"({"title":"T","playing":true,"durationMicros":0,"duration":100,"elapsedTimeMicros":0,)"
      R"("elapsedTime":5,"playbackRate":-1,"timestampEpochMicros":0,)"
      R"("timestamp":"2024-05-01T12:30:05.5Z","shuffleMode":2,"repeatMode":3,"artist":"",)"
      R"("album":"Al","bundleIdentifier":"b","parentApplicationBundleIdentifier":"p",)"
      R"("processIdentifier":4242})");
  EXPECT_FALSE(s.duration) << "a finite micro value decides, even when refused";
  EXPECT_EQ(s.elapsed, 0.0);
  EXPECT_EQ(s.playbackRate, 1.0);
  EXPECT_EQ(s.elapsedTimestamp, 1714566605.5);
  EXPECT_EQ(s.shuffle, ShuffleMode::albums);
  EXPECT_EQ(s.repeatMode, RepeatMode::all);
  EXPECT_FALSE(s.artist);
  EXPECT_EQ(s.album, "Al");
  EXPECT_EQ(s.bundleIdentifier, "b");
  EXPECT_EQ(s.parentBundleIdentifier, "p");
  EXPECT_EQ(s.processIdentifier, 4242);
  EXPECT_EQ(s.capabilities.rawValue, 63);
  for (const char* nonsense : {"0", "-5", "4.5", "\"12\"", "1e12"}) {
    EXPECT_FALSE(
        parsed(std::string(R"({"title":"T","playing":true,"processIdentifier":)") + nonsense + "}")
            .processIdentifier)
        << nonsense;
  }

  s = parsed(R"({"title":"T","playing":false,"durationMicros":"9","duration":604800,)"
             R"("elapsedTimeMicros":604800000001,"elapsedTime":3,"playbackRate":2,)"
             R"("timestampEpochMicros":1700000000000000,"shuffleMode":2.5,"repeatMode":"1"})");
  EXPECT_EQ(s.duration, 604800.0) << "a micro value that is not a number falls back";
  EXPECT_FALSE(s.elapsed);
  EXPECT_FALSE(s.elapsedTimestamp) << "no timestamp without a position";
  EXPECT_EQ(s.playbackRate, 0.0) << "paused";
  EXPECT_FALSE(s.shuffle);
  EXPECT_FALSE(s.repeatMode);

  s = parsed(R"({"title":"T","playing":true,"duration":604800.000001,"elapsedTime":-0.5,)"
             R"("playbackRate":0.5})");
  EXPECT_FALSE(s.duration);
  EXPECT_FALSE(s.elapsed);
  EXPECT_EQ(s.playbackRate, 0.5);

  s = parsed(R"({"title":"T","playing":true,"elapsedTimeMicros":1500000,)"
             R"("timestampEpochMicros":-5,"timestamp":"2024-13-01T00:00:00Z"})");
  EXPECT_EQ(s.elapsed, 1.5);
  EXPECT_FALSE(s.elapsedTimestamp);

  Parser parser;
  for (const char* payload : {R"({"title":"","playing":true})", R"({"title":"T","playing":1})",
                              R"({"playing":true})", R"({"title":"T"})", "{}"}) {
    EXPECT_EQ(parser.parse(message(payload)), Parser::Result(std::nullopt)) << payload;
  }
}

}  // namespace
}  // namespace tindra
