#include "nowplaying/adapter_command_line.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tindra {
namespace {

using Words = std::array<std::string, 2>;
using AdapterCommandLine::sendArguments;

TEST(AdapterCommandLineTest, StreamWordsClampTheDebounceAndNameMissingArtwork) {
  using Strings = std::vector<std::string>;
  EXPECT_EQ(AdapterCommandLine::streamArguments(100, true),
            (Strings{"stream", "--micros", "--debounce=100"}));
  EXPECT_EQ(AdapterCommandLine::streamArguments(100, false),
            (Strings{"stream", "--micros", "--debounce=100", "--no-artwork"}));
  EXPECT_EQ(AdapterCommandLine::streamArguments(-1, true)[2], "--debounce=0");
}

TEST(AdapterCommandLineTest, CommandsUseTheMediaRemoteCodes) {
  EXPECT_EQ(sendArguments(NowPlayingCommand::play()), (Words{"send", "0"}));
  EXPECT_EQ(sendArguments(NowPlayingCommand::pause()), (Words{"send", "1"}));
  EXPECT_EQ(sendArguments(NowPlayingCommand::togglePlayPause()), (Words{"send", "2"}));
  EXPECT_EQ(sendArguments(NowPlayingCommand::nextTrack()), (Words{"send", "4"}));
  EXPECT_EQ(sendArguments(NowPlayingCommand::previousTrack()), (Words{"send", "5"}));
  EXPECT_EQ(sendArguments(NowPlayingCommand::setShuffle(ShuffleMode::off)),
            (Words{"shuffle", "1"}));
  EXPECT_EQ(sendArguments(NowPlayingCommand::setShuffle(ShuffleMode::albums)),
            (Words{"shuffle", "2"}));
  EXPECT_EQ(sendArguments(NowPlayingCommand::setShuffle(ShuffleMode::tracks)),
            (Words{"shuffle", "3"}));
  EXPECT_EQ(sendArguments(NowPlayingCommand::setRepeat(RepeatMode::off)), (Words{"repeat", "1"}));
  EXPECT_EQ(sendArguments(NowPlayingCommand::setRepeat(RepeatMode::track)), (Words{"repeat", "2"}));
  EXPECT_EQ(sendArguments(NowPlayingCommand::setRepeat(RepeatMode::all)), (Words{"repeat", "3"}));
}

TEST(AdapterCommandLineTest, SeekRoundsToMicrosecondsWithinSevenDays) {
  auto seek = [](double t) { return sendArguments(NowPlayingCommand::seek(t)); };
  EXPECT_EQ(seek(1.5), (Words{"seek", "1500000"}));
  EXPECT_EQ(seek(0), (Words{"seek", "0"}));
  EXPECT_EQ(seek(0.0000005), (Words{"seek", "1"})) << "half a microsecond rounds away from zero";
  EXPECT_EQ(seek(0.0000004), (Words{"seek", "0"}));
  EXPECT_EQ(seek(604800), (Words{"seek", "604800000000"}));
  EXPECT_FALSE(seek(604800.000001));
  EXPECT_FALSE(seek(700000));
  EXPECT_FALSE(seek(-0.000001));
  EXPECT_FALSE(seek(std::nan("")));
  EXPECT_FALSE(seek(std::numeric_limits<double>::infinity()));
}

}  // namespace
}  // namespace tindra
