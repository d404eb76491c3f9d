#include "nowplaying/adapter_launch.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

using Strings = std::vector<std::string>;

TEST(AdapterLaunchTest, ThePlatformsWordsGoBeforeTheAdaptersOwn) {
  const AdapterLaunch perl = AdapterLaunch::perlScript("s.pl", "F.framework", "client");
  EXPECT_EQ(perl.program, "/usr/bin/perl");
  EXPECT_EQ(perl.arguments({"send", "2"}), (Strings{"s.pl", "F.framework", "send", "2"}));
  EXPECT_EQ(perl.testArguments(), (Strings{"s.pl", "F.framework", "client", "test"}));
  EXPECT_EQ(perl.requiredFiles, (Strings{"s.pl", "F.framework", "client"}));

  const AdapterLaunch helper = AdapterLaunch::helperProgram("/opt/tindra/tindra-mpris-adapter");
  EXPECT_EQ(helper.arguments({"stream", "--micros"}), (Strings{"stream", "--micros"}));
  EXPECT_EQ(helper.testArguments(), (Strings{"test"}));
  EXPECT_EQ(helper.requiredFiles, (Strings{"/opt/tindra/tindra-mpris-adapter"}));
}

}  // namespace
}  // namespace tindra
