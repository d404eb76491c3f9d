#include "notch/display_change_log.h"

#include <gtest/gtest.h>

#include "base/diagnostics_log.h"
#include "testing/fake_screen_source.h"

namespace tindra {
namespace {

using Screen = FakeScreenSource::Screen;

const Screen laptop{1, "eDP-1", {0, 0, 1920, 1080}, {0, 0, 1920, 1080}, true};
const Screen monitor{2, "DP-2", {1920, 0, 2560, 1440}, {1920, 0, 2560, 1440}, false, "DELL U2720Q"};
const Screen projector{3, "HDMI-1", {0, 1080, 1280, 720}, {0, 1080, 1280, 720}};

QStringList logged(const DiagnosticsLog& diagnostics) {
  QStringList lines;
  for (const auto& entry : diagnostics.entries()) {
    EXPECT_EQ(entry.source, "displays");
    EXPECT_EQ(entry.outcome, DiagnosticsLog::Outcome::ok);
    lines << entry.text.english();
  }
  return lines;
}

TEST(DisplayChangeLogTest, TellsOfDisplaysThatComeAndGoButNotOfThoseAlreadyThere) {
  FakeScreenSource screens;
  screens.set({laptop, monitor});
  DiagnosticsLog diagnostics;
  DisplayChangeLog log(screens, diagnostics);
  EXPECT_TRUE(logged(diagnostics).isEmpty());

  // One unplugged and another plugged in at once, as a dock swap reports it.
  screens.set({laptop, projector});
  EXPECT_EQ(logged(diagnostics),
            (QStringList{"display DELL U2720Q went away", "display HDMI-1 is connected"}));
  screens.set({laptop, projector, monitor});
  EXPECT_EQ(logged(diagnostics).last(), "display DELL U2720Q is connected");
  screens.set({});
  EXPECT_EQ(logged(diagnostics).size(), 6);
}

TEST(DisplayChangeLogTest, AMovedOrResizedDisplayIsNoNews) {
  FakeScreenSource screens;
  screens.set({laptop, monitor});
  DiagnosticsLog diagnostics;
  DisplayChangeLog log(screens, diagnostics);
  Screen moved = monitor;
  moved.geometry = moved.available = {-2560, 0, 2560, 1440};
  Screen main = laptop;
  main.isMain = false;
  moved.isMain = true;
  screens.set({main, moved});
  EXPECT_TRUE(logged(diagnostics).isEmpty());
}

}  // namespace
}  // namespace tindra
