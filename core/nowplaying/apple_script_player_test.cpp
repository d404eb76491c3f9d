#include "nowplaying/apple_script_player.h"
#include "base/scoped_locale.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>

namespace tindra {
namespace {

using Status = AppleScriptPlayerStatus;
constexpr char sep = '\x1f';

std::string record(std::initializer_list<std::string_view> fields) {
  std::string text;
  for (std::string_view field : fields) {
    if (!text.empty()) text += sep;
    text += field;
  }
  return text;
}

NowPlayingSnapshot snapshotOf(const Status& status) {
  EXPECT_EQ(status.kind, Status::Kind::playing);
  return status.snapshot.value_or(NowPlayingSnapshot{});
}

TEST(AppleScriptPlayerTest, TrackRecordsBecomeSnapshotsSampledAtTheGivenTime) {
  const auto spotify =
      snapshotOf(parse(AppleScriptPlayer::spotify,
                       record({"track", "playing", " \xC2\xA0Song\n", "Artist", "", "215000",
                               "1500", "true", "all", "https://i.scdn.co/image/abc"}),
                       1000));
  EXPECT_EQ(spotify.title, "Song") << "trimmed of white space, no-break space included";
  EXPECT_EQ(spotify.bundleIdentifier, "com.spotify.client");
  EXPECT_EQ(spotify.artist, "Artist");
  EXPECT_EQ(spotify.album, std::nullopt) << "absent rather than empty";
  EXPECT_EQ(spotify.duration, 215.0);
  EXPECT_EQ(spotify.elapsed, 1.5);
  EXPECT_EQ(spotify.elapsedTimestamp, 1000.0);
  EXPECT_EQ(spotify.playbackRate, 1.0);
  EXPECT_EQ(spotify.shuffle, ShuffleMode::tracks);
  EXPECT_EQ(spotify.repeatMode, RepeatMode::all);
  EXPECT_EQ(spotify.artwork, NowPlayingSnapshot::Artwork::remote("https://i.scdn.co/image/abc"));
  EXPECT_EQ(spotify.capabilities, NowPlayingCapabilities::all());
  EXPECT_EQ(spotify.position(1002), 3.5) << "extrapolates from the sample";

  const auto music = snapshotOf(
      parse(AppleScriptPlayer::music,
            record({"track", "Paused", "Radio", "", "", "", "1.2E+5", "false", "one", ""}), 50));
  EXPECT_FALSE(music.isPlaying) << "only the exact word playing plays";
  EXPECT_EQ(music.playbackRate, 0.0);
  EXPECT_EQ(music.duration, std::nullopt);
  EXPECT_EQ(music.elapsed, 120.0) << "AppleScript writes large reals in E notation";
  EXPECT_EQ(music.shuffle, ShuffleMode::off);
  EXPECT_EQ(music.repeatMode, RepeatMode::track);
  EXPECT_EQ(music.artwork, std::nullopt);
  EXPECT_EQ(music.position(60), 120.0);
}

TEST(AppleScriptPlayerTest, DurationsAndPositionsAreBoundedBySevenDays) {
  const auto withTimes = [](std::string_view duration, std::string_view position) {
    return snapshotOf(parse(
        AppleScriptPlayer::music,
        record({"track", "playing", "A", "B", "C", duration, position, "false", "off", ""}), 0));
  };
  EXPECT_EQ(withTimes("604800000", "604800000").duration, 604800.0);
  EXPECT_EQ(withTimes("604800000", "604800000").elapsed, 604800.0);
  EXPECT_EQ(withTimes("604800001", "604800001").duration, std::nullopt);
  EXPECT_EQ(withTimes("604800001", "604800001").elapsed, std::nullopt);
  EXPECT_EQ(withTimes("0", "0").duration, std::nullopt) << "a zero length is unknown";
  EXPECT_EQ(withTimes("0", "0").elapsed, 0.0);
  EXPECT_EQ(withTimes("-5", "-5").elapsed, std::nullopt);
  EXPECT_EQ(withTimes("12x", "nan").duration, std::nullopt);
  EXPECT_EQ(withTimes("12x", "nan").elapsed, std::nullopt);
  EXPECT_EQ(withTimes("12x", "").elapsedTimestamp, std::nullopt) << "no position, no sample time";
}

TEST(AppleScriptPlayerTest, RecordKindsAndBrokenOutput) {
  EXPECT_EQ(parse(AppleScriptPlayer::music, "notrunning", 0), Status::notRunning());
  EXPECT_EQ(parse(AppleScriptPlayer::safari, "idle", 0), Status::idle());
  EXPECT_EQ(parse(AppleScriptPlayer::music,
                  record({"track", "playing", "", "A", "B", "1", "1", "false", "off", ""}), 0),
            Status::idle())
      << "an empty name means nothing to show";
  EXPECT_EQ(parse(AppleScriptPlayer::music, record({"track", "playing", "A", "B"}), 0),
            Status::unreadable());
  EXPECT_EQ(parse(AppleScriptPlayer::music, "", 0), Status::unreadable());
  EXPECT_EQ(parse(AppleScriptPlayer::music, "Notrunning", 0), Status::unreadable());
  EXPECT_EQ(parse(AppleScriptPlayer::music, record({"tab", "Song", "playing,1,2"}), 0),
            Status::unreadable())
      << "Music never reports tabs";
  EXPECT_EQ(parse(AppleScriptPlayer::chrome, record({"tab", "Song"}), 0), Status::unreadable());
}

TEST(AppleScriptPlayerTest, TabRecordsReadTheTitleAndTheStateTriple) {
  const auto tab = snapshotOf(parse(AppleScriptPlayer::safari,
                                    record({"tab", "(2) Song - YouTube", "playing,1500,-1"}), 7));
  EXPECT_EQ(tab.title, "Song");
  EXPECT_EQ(tab.bundleIdentifier, "com.apple.Safari");
  EXPECT_TRUE(tab.isPlaying);
  EXPECT_EQ(tab.elapsed, 1.5);
  EXPECT_EQ(tab.duration, std::nullopt) << "-1 means a live stream";
  EXPECT_FALSE(tab.capabilities.contains(NowPlayingCapabilities::previousTrack()));
  EXPECT_TRUE(tab.capabilities.contains(NowPlayingCapabilities::seek()));

  const auto paused = snapshotOf(parse(
      AppleScriptPlayer::chrome, record({"tab", "Song - YouTube Music", "paused,0,200000"}), 0));
  EXPECT_EQ(paused.title, "Song");
  EXPECT_FALSE(paused.isPlaying);
  EXPECT_EQ(paused.duration, 200.0);

  const auto noVideo = snapshotOf(parse(AppleScriptPlayer::chrome, record({"tab", "Song", ""}), 0));
  EXPECT_FALSE(noVideo.isPlaying);
  EXPECT_EQ(noVideo.elapsed, std::nullopt);
  EXPECT_EQ(parse(AppleScriptPlayer::chrome, record({"tab", "YouTube", "playing,1,2"}), 0),
            Status::idle());
}

TEST(AppleScriptPlayerTest, ReadScriptsCarryTheSharedHandlersAndTimeouts) {
  for (AppleScriptPlayer player : allCases<AppleScriptPlayer>()) {
    const std::string script = readScript(player);
    EXPECT_NE(script.find("on textOf(value)"), std::string::npos);
    EXPECT_NE(script.find("return (round (secs * 1000)) as text"), std::string::npos);
    EXPECT_NE(script.find("on flag(value)"), std::string::npos);
    EXPECT_NE(script.find("set sep to character id 31"), std::string::npos);
    EXPECT_NE(script.find("with timeout of 3 seconds"), std::string::npos);
    EXPECT_NE(script.find("application id \"" + std::string(bundleIdentifier(player)) +
                          "\" is not running then return \"notrunning\""),
              std::string::npos);
  }
  EXPECT_NE(readScript(AppleScriptPlayer::music).find("current stream title"), std::string::npos);
  EXPECT_NE(readScript(AppleScriptPlayer::spotify).find("my textOf(duration of t)"),
            std::string::npos)
      << "Spotify already reports milliseconds";
  const std::string safari = readScript(AppleScriptPlayer::safari);
  EXPECT_NE(safari.find("do JavaScript stateJS in t"), std::string::npos);
  EXPECT_NE(safari.find("\"https://music.youtube.com/watch\""), std::string::npos);
  EXPECT_NE(readScript(AppleScriptPlayer::chrome).find("execute t javascript stateJS"),
            std::string::npos);
}

std::string statementOf(AppleScriptPlayer player, const NowPlayingCommand& command) {
  return commandScript(player, command).value_or("none");
}

TEST(AppleScriptPlayerTest, CommandScriptsAndWhatEachPlayerRefuses) {
  EXPECT_NE(statementOf(AppleScriptPlayer::music, NowPlayingCommand::setRepeat(RepeatMode::track))
                .find("to set song repeat to one\n"),
            std::string::npos);
  EXPECT_NE(statementOf(AppleScriptPlayer::spotify, NowPlayingCommand::setRepeat(RepeatMode::track))
                .find("to set repeating to true\n"),
            std::string::npos);
  EXPECT_NE(
      statementOf(AppleScriptPlayer::spotify, NowPlayingCommand::setShuffle(ShuffleMode::albums))
          .find("to set shuffling to true\n"),
      std::string::npos);
  EXPECT_NE(statementOf(AppleScriptPlayer::music, NowPlayingCommand::togglePlayPause())
                .find("if application id \"com.apple.Music\" is running then"),
            std::string::npos);

  // Seeks are "%.3f" (see SeeksIgnoreALocaleWithADecimalComma for a comma locale).
  EXPECT_NE(statementOf(AppleScriptPlayer::music, NowPlayingCommand::seek(12.3456))
                .find("set player position to 12.346\n"),
            std::string::npos);

  for (AppleScriptPlayer player : allCases<AppleScriptPlayer>()) {
    EXPECT_EQ(commandScript(player, NowPlayingCommand::seek(-1)), std::nullopt);
    EXPECT_EQ(commandScript(player, NowPlayingCommand::seek(604800.001)), std::nullopt);
    EXPECT_EQ(commandScript(player, NowPlayingCommand::seek(NAN)), std::nullopt);
  }
  for (AppleScriptPlayer tab : {AppleScriptPlayer::safari, AppleScriptPlayer::chrome}) {
    EXPECT_EQ(commandScript(tab, NowPlayingCommand::previousTrack()), std::nullopt);
    EXPECT_EQ(commandScript(tab, NowPlayingCommand::setShuffle(ShuffleMode::tracks)), std::nullopt);
    EXPECT_EQ(commandScript(tab, NowPlayingCommand::setRepeat(RepeatMode::all)), std::nullopt);
  }
  const std::string next = statementOf(AppleScriptPlayer::safari, NowPlayingCommand::nextTrack());
  EXPECT_NE(next.find("ytmusic-player-bar .next-button');if(b)b.click();return '';})()"),
            std::string::npos);
  EXPECT_NE(next.find("do JavaScript commandJS in chosenTab"), std::string::npos);
  EXPECT_NE(next.find("if chosenTab is missing value then return \"idle\""), std::string::npos);
}

TEST(AppleScriptPlayerTest, SeeksIgnoreALocaleWithADecimalComma) {
  const ScopedLocale comma(LC_NUMERIC, "de_DE.UTF-8");
  if (!comma.active()) GTEST_SKIP() << "the de_DE.UTF-8 locale is missing (Debian: locales-all)";
  EXPECT_NE(statementOf(AppleScriptPlayer::music, NowPlayingCommand::seek(12.3456))
                .find("set player position to 12.346\n"),
            std::string::npos);
  EXPECT_NE(statementOf(AppleScriptPlayer::chrome, NowPlayingCommand::seek(604800))
                .find("\"(function(){var v=document.querySelector('video');"
                      "if(v)v.currentTime=604800.000;return '';})()\""),
            std::string::npos);
}

}  // namespace
}  // namespace tindra
