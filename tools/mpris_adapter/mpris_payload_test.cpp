#include "mpris_payload.h"

#include <gtest/gtest.h>

#include <QDBusObjectPath>

#include "mpris_session.h"
#include "nowplaying/now_playing_capabilities.h"
#include "payload_stream.h"

namespace tindra {
namespace {

MprisPlayerState player(const QString& title, const QString& status) {
  MprisPlayerState state;
  state.busName = QStringLiteral("org.mpris.MediaPlayer2.firefox.instance_1_84");
  state.playbackStatus = status;
  state.metadata = {{"xesam:title", title},
                    {"xesam:artist", QStringList{"A", "B"}},
                    {"mpris:length", qlonglong(180'000'000)},
                    {"mpris:trackid", QVariant::fromValue(QDBusObjectPath("/track/1"))}};
  return state;
}

const MprisPayload::ReadFile noFiles = [](const QString&, std::size_t) {
  return std::optional<std::string>();
};

TEST(MprisPayloadTest, KeysAndUnitsAreTheAdaptersAndNonsenseIsLeftOut) {
  MprisPlayerState state = player("Song", "Playing");
  state.positionMicros = 5'000'000;
  state.sampledAtMicros = 1'800'000'000'000'000;
  state.loopStatus = "Playlist";
  state.shuffle = false;
  JSONValue::Object payload = MprisPayload::make(state, true, noFiles);
  EXPECT_EQ(payload.at("title"), JSONValue("Song"));
  EXPECT_EQ(payload.at("artist"), JSONValue("A, B"));
  EXPECT_EQ(payload.at("bundleIdentifier"), JSONValue("firefox"));  // the instance suffix goes
  EXPECT_EQ(payload.at("durationMicros"), JSONValue(180'000'000.0));
  EXPECT_EQ(payload.at("elapsedTimeMicros"), JSONValue(5'000'000.0));
  EXPECT_EQ(payload.at("repeatMode"), JSONValue(3.0));
  EXPECT_EQ(payload.at("shuffleMode"), JSONValue(1.0));
  EXPECT_EQ(payload.at("playing"), JSONValue(true));

  state.metadata["mpris:length"] = QStringLiteral("long");  // wrong type
  state.rate = -2;
  state.positionMicros = -1;
  state.loopStatus = "Sometimes";
  payload = MprisPayload::make(state, true, noFiles);
  for (const char* key : {"durationMicros", "playbackRate", "elapsedTimeMicros", "repeatMode"}) {
    EXPECT_FALSE(payload.contains(key)) << key;
  }
  // No title, no track: an empty payload, which reads as nothing playing.
  EXPECT_TRUE(MprisPayload::make(player("  ", "Playing"), true, noFiles).empty());
  EXPECT_TRUE(MprisPayload::make(std::nullopt, true, noFiles).empty());
}

TEST(MprisPayloadTest, CoversFromFilesAndDataAddressesOnly) {
  std::size_t askedLimit = 0;
  const MprisPayload::ReadFile files = [&](const QString& path, std::size_t limit) {
    askedLimit = limit;
    return path == "/covers/a.png" ? std::optional<std::string>("PNG!") : std::nullopt;
  };
  EXPECT_EQ(MprisPayload::coverBytes("file:///covers/a.png", files), "PNG!");
  EXPECT_EQ(askedLimit, MprisPayload::maxCoverBytes);
  EXPECT_EQ(MprisPayload::coverBytes("data:image/png;base64,UE5HIQ==", files), "PNG!");
  EXPECT_EQ(MprisPayload::coverBytes("data:text/plain,a%20b", files), "a b");
  EXPECT_EQ(MprisPayload::coverBytes("https://i.scdn.co/image/x", files), std::nullopt);
  EXPECT_EQ(MprisPayload::coverBytes("file:///missing.png", files), std::nullopt);

  MprisPlayerState state = player("Song", "Paused");
  state.metadata["mpris:artUrl"] = QStringLiteral("file:///covers/a.png");
  EXPECT_EQ(MprisPayload::make(state, true, files).at("artworkData"), JSONValue("UE5HIQ=="));
  EXPECT_FALSE(MprisPayload::make(state, false, files).contains("artworkData"));

  // Web addresses go on as they are, for the app to judge; anything else is dropped.
  state.metadata["mpris:artUrl"] = QStringLiteral("https://covers.example.net/a.jpg");
  JSONValue::Object payload = MprisPayload::make(state, true, files);
  EXPECT_EQ(payload.at("artworkURL"), JSONValue("https://covers.example.net/a.jpg"));
  EXPECT_FALSE(payload.contains("artworkData"));
  EXPECT_FALSE(MprisPayload::make(state, false, files).contains("artworkURL"));
  for (const char* address :
       {"ftp://i.scdn.co/a", "https://", "https://i.scdn.co/a b", "cover.png"}) {
    state.metadata["mpris:artUrl"] = QString::fromLatin1(address);
    EXPECT_FALSE(MprisPayload::make(state, true, files).contains("artworkURL")) << address;
  }
  state.metadata["mpris:artUrl"] =
      "https://i.scdn.co/" + QString(int(MprisPayload::maxCoverAddressLength), u'a');
  EXPECT_FALSE(MprisPayload::make(state, true, files).contains("artworkURL"));
}

TEST(MprisPayloadTest, CapabilitiesFollowTheCanPropertiesAndTheModesAPlayerShows) {
  using C = NowPlayingCapabilities;
  const auto capabilities = [](const MprisPlayerState& state) {
    return MprisPayload::make(state, false, noFiles).at("capabilities");
  };
  MprisPlayerState state = player("Song", "Playing");
  EXPECT_EQ(capabilities(state),
            JSONValue(double(C::playPauseBit | C::nextTrackBit | C::previousTrackBit | C::seekBit)))
      << "no Shuffle or LoopStatus: no mode buttons";
  state.shuffle = true;
  state.loopStatus = "None";
  state.controls.next = false;
  state.controls.seek = false;
  state.controls.play = false;  // pausing alone still makes the button useful
  EXPECT_EQ(capabilities(state), JSONValue(double(C::playPauseBit | C::previousTrackBit |
                                                  C::shuffleBit | C::repeatBit)));
  state.controls.pause = false;
  EXPECT_EQ(capabilities(state),
            JSONValue(double(C::previousTrackBit | C::shuffleBit | C::repeatBit)));
  state.controls = {};
  state.controls.control = false;
  EXPECT_EQ(capabilities(state), JSONValue(0.0)) << "CanControl false outranks everything";
}

TEST(MprisSessionTest, TheLatestToStartPlayingWinsElseTheLatestActive) {
  MprisPlayerState a = player("A", "Paused");
  a.lastActiveMicros = 10;
  MprisPlayerState b = player("B", "Paused");
  b.lastActiveMicros = 20;
  EXPECT_EQ(MprisSession::choose({a, b})->metadata["xesam:title"], "B");
  a.playbackStatus = "Playing";
  a.startedPlayingMicros = 5;
  EXPECT_EQ(MprisSession::choose({a, b})->metadata["xesam:title"], "A");
  b.playbackStatus = "Playing";
  b.startedPlayingMicros = 30;
  EXPECT_EQ(MprisSession::choose({a, b})->metadata["xesam:title"], "B");
  MprisPlayerState silent = player("", "Playing");  // no metadata: never chosen
  silent.startedPlayingMicros = 99;
  EXPECT_EQ(MprisSession::choose({a, silent})->metadata["xesam:title"], "A");
  EXPECT_FALSE(MprisSession::choose({silent}).has_value());
}

TEST(PayloadStreamTest, DiffsCarryChangesAndNullForWhatWentAway) {
  const JSONValue::Object before{{"title", "A"}, {"artist", "B"}, {"playing", true}};
  const JSONValue::Object after{{"title", "A"}, {"playing", false}, {"album", "C"}};
  EXPECT_EQ(PayloadStream::diff(before, after),
            (JSONValue::Object{{"playing", false}, {"album", "C"}, {"artist", nullptr}}));
  EXPECT_TRUE(PayloadStream::diff(after, after).empty());
}

}  // namespace
}  // namespace tindra
