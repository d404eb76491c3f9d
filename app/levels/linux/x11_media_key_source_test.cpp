// Runs in: private-session --xvfb
#include "levels/linux/x11_media_key_source.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QTest>

#include "testing/skip_or_fail_on_ci.h"

namespace tindra {
namespace {

using Key = SystemDefinedKeyEvent::Key;

// xdotool, a second X client that types as a person would.
void type(const QString& keys) {
  QProcess::execute("xdotool", {"key", keys});
}

// Collects what a source reports.
struct Presses {
  explicit Presses(MediaKeySource& source) {
    QObject::connect(&source, &MediaKeySource::pressed,
                     [this](const MediaKeyPress& press) { all.push_back(press); });
  }
  bool waitFor(std::size_t count) {
    return QTest::qWaitFor([&] { return all.size() >= count; }, 3000);
  }
  std::vector<MediaKeyPress> all;
};

class X11MediaKeySourceTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (qEnvironmentVariableIsEmpty("DISPLAY")) SKIP_OR_FAIL_ON_CI("no X display");
  }
};

TEST_F(X11MediaKeySourceTest, SeesTheHeldCombinationsAndNothingElse) {
  X11MediaKeySource source;
  ASSERT_EQ(source.check().outcome, DiagnosticsLog::Outcome::ok)
      << source.check().text.english().toStdString();
  Presses presses(source);
  source.setWanted({{Key::soundUp, {}},
                    {Key::soundUp, KeyModifiers::shift()},
                    {Key::soundUp, KeyModifiers::option() | KeyModifiers::shift()}});
  EXPECT_TRUE(source.refused().empty());

  type("XF86AudioRaiseVolume");
  ASSERT_TRUE(presses.waitFor(2));
  EXPECT_EQ(presses.all[0].key, Key::soundUp);
  EXPECT_TRUE(presses.all[0].isKeyDown);
  EXPECT_FALSE(presses.all[0].isRepeat);
  EXPECT_TRUE(presses.all[0].modifiers.isEmpty());
  EXPECT_FALSE(presses.all[1].isKeyDown);

  type("shift+alt+XF86AudioRaiseVolume");
  ASSERT_TRUE(presses.waitFor(4));
  EXPECT_EQ(presses.all[2].modifiers, KeyModifiers::option() | KeyModifiers::shift());

  // Not held: a key nobody asked for, and Control with a held key, go to the desktop.
  type("XF86AudioLowerVolume");
  type("ctrl+XF86AudioRaiseVolume");
  // Num Lock on does not stop a held key from matching.
  type("Num_Lock");
  type("XF86AudioRaiseVolume");
  type("Num_Lock");
  ASSERT_TRUE(presses.waitFor(6));
  QTest::qWait(200);
  EXPECT_EQ(presses.all.size(), 6u);
  EXPECT_TRUE(presses.all[4].modifiers.isEmpty());

  source.setWanted({});
  type("XF86AudioRaiseVolume");
  QTest::qWait(200);
  EXPECT_EQ(presses.all.size(), 6u);
}

TEST_F(X11MediaKeySourceTest, LeavesAKeyThatAnotherProgramHolds) {
  X11MediaKeySource other(std::make_shared<XcbConnection>());  // another X client
  Presses otherPresses(other);
  other.setWanted({{Key::mute, {}}});

  X11MediaKeySource source;
  Presses presses(source);
  source.setWanted({{Key::mute, {}}, {Key::soundDown, {}}});
  ASSERT_EQ(source.refused(), (std::vector<KeyGrab>{{Key::mute, {}}}));
  EXPECT_EQ(source.check().outcome, DiagnosticsLog::Outcome::degraded);
  type("XF86AudioMute");
  ASSERT_TRUE(otherPresses.waitFor(2));
  type("XF86AudioLowerVolume");
  ASSERT_TRUE(presses.waitFor(2));
  EXPECT_EQ(presses.all[0].key, Key::soundDown);

  other.setWanted({});
  source.setWanted({{Key::mute, {}}, {Key::soundDown, {}}});
  EXPECT_TRUE(source.refused().empty());
  type("XF86AudioMute");
  ASSERT_TRUE(presses.waitFor(4));
  EXPECT_EQ(presses.all[2].key, Key::mute);
}

TEST(X11ModifiersTest, AltIsOptionAndSuperIsCommand) {
  const KeyModifiers all = KeyModifiers::shift() | KeyModifiers::control() |
                           KeyModifiers::option() | KeyModifiers::command();
  EXPECT_EQ(X11MediaKeySource::modifiersFromState(X11MediaKeySource::stateFromModifiers(all)), all);
  EXPECT_EQ(
      X11MediaKeySource::modifiersFromState(XCB_MOD_MASK_1 | XCB_MOD_MASK_2 | XCB_MOD_MASK_LOCK),
      KeyModifiers::option());  // Num Lock and Caps Lock are no modifiers here
}

}  // namespace
}  // namespace tindra
