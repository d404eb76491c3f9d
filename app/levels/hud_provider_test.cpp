#include "levels/hud_provider.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "base/diagnostics_log.h"
#include "levels/fake_backlight_backend.h"
#include "levels/fake_media_key_source.h"
#include "levels/fake_volume_backend.h"
#include "levels/fake_volume_sound_preference.h"
#include "settings/settings_keys.h"
#include "testing/manual_one_shot_scheduler.h"
#include "testing/provider_test_context.h"

namespace tindra {
namespace {

using Key = SystemDefinedKeyEvent::Key;

// The provider on fakes, with a clock the test moves.
class HudProviderTest : public ::testing::Test {
 protected:
  HudProviderTest() {
    auto volume = std::make_unique<FakeVolumeBackend>();
    auto display = std::make_unique<FakeBacklightBackend>("panel", 0.5);
    auto keyboard = std::make_unique<FakeBacklightBackend>("keyboard", 0.5);
    auto keys = std::make_unique<FakeMediaKeySource>();
    auto volumeSound = std::make_unique<FakeVolumeSoundPreference>();
    volume_ = volume.get();
    volumeSound_ = volumeSound.get();
    display_ = display.get();
    keyboard_ = keyboard.get();
    keys_ = keys.get();
    provider_ = std::make_unique<HudProvider>(
        context_, HudBackends{std::move(volume), std::move(display), std::move(keyboard),
                              std::move(keys), nullptr, std::move(volumeSound)});
  }

  HudViewModel& view() { return *provider_->viewModel(); }
  QString lastDiagnostic(const QString& source) const {
    QString text;
    for (const auto& entry : context_.diagnostics().entries()) {
      if (entry.source == source) text = entry.text.english();
    }
    return text;
  }

  double now_ = 100;
  ProviderTestContext context_{[this] { return now_; }, std::make_unique<ManualOneShotScheduler>()};
  FakeVolumeBackend* volume_;
  FakeBacklightBackend* display_;
  FakeBacklightBackend* keyboard_;
  FakeMediaKeySource* keys_;
  FakeVolumeSoundPreference* volumeSound_;
  std::unique_ptr<HudProvider> provider_;
};

TEST_F(HudProviderTest, VolumeKeysStepFromWhatWasWrittenAndShowItOnce) {
  provider_->start();
  QSignalSpy changes(&view(), &HudViewModel::changed);
  EXPECT_EQ(context_.activities().current(),
            ActivityKind::idle);  // the first reading shows nothing
  EXPECT_TRUE(keys_->holds(Key::soundUp));
  EXPECT_TRUE(keys_->holds(Key::soundUp, KeyModifiers::option() | KeyModifiers::shift()));
  EXPECT_FALSE(keys_->holds(Key::soundUp, KeyModifiers::option()));  // Option alone stays

  keys_->tap(Key::soundUp);  // 0.6 lies between grid points: on to 10/16
  EXPECT_EQ(volume_->reading()->level, 0.625);
  EXPECT_EQ(view().percent(), 63);
  EXPECT_EQ(context_.activities().current(), ActivityKind::hud);
  EXPECT_EQ(changes.count(), 1);  // the server's echo of the write is not a second show

  // A late echo of the first write, after a second press, neither shows nor moves the bar back.
  now_ += 0.1;
  keys_->tap(Key::soundUp, KeyModifiers::option() | KeyModifiers::shift());
  EXPECT_EQ(view().level(), 0.625 + 1.0 / 64);
  volume_->publish(VolumeReading{"invented-output", 0.625, false, AudioTransport::builtIn});
  EXPECT_EQ(view().level(), 0.625 + 1.0 / 64);
  EXPECT_EQ(changes.count(), 2);
  EXPECT_NEAR(view().glideSeconds(), 0.1, 1e-9);  // presses close together glide
  // No desktop preference and the fallback off, so only Shift (here with Option) plays it.
  EXPECT_EQ(volume_->feedbackPlayed, 1);

  now_ += 5;
  keys_->tap(Key::mute);
  EXPECT_TRUE(volume_->reading()->muted);
  EXPECT_EQ(view().symbol(), "speaker.slash.fill");
  EXPECT_EQ(view().glideSeconds(), 0);  // an isolated press settles
  keys_->tap(Key::soundDown);           // lowering keeps the mute
  EXPECT_TRUE(volume_->reading()->muted);
  keys_->tap(Key::soundUp);
  EXPECT_FALSE(volume_->reading()->muted);
  EXPECT_EQ(volume_->feedbackPlayed, 1);
  ASSERT_TRUE(context_.settings().write(settings::volumeFeedbackFallback, true));
  keys_->tap(Key::soundUp);
  EXPECT_EQ(volume_->feedbackPlayed, 2);
}

// The desktop's own choice decides over Tindra's fallback from the moment it changes; Shift
// inverts whichever decides; without a choice the fallback is back.
TEST_F(HudProviderTest, TheDesktopsVolumeSoundChoiceWinsOverTheFallback) {
  provider_->start();
  const auto plays = [&](KeyModifiers modifiers) {
    const int before = volume_->feedbackPlayed;
    now_ += 5;
    keys_->tap(Key::soundDown, modifiers);
    return volume_->feedbackPlayed > before;
  };
  ASSERT_TRUE(context_.settings().write(settings::volumeFeedbackFallback, true));
  volumeSound_->publish(false);
  EXPECT_FALSE(plays({}));
  EXPECT_TRUE(plays(KeyModifiers::shift()));
  ASSERT_TRUE(context_.settings().write(settings::volumeFeedbackFallback, false));
  volumeSound_->publish(true);
  EXPECT_TRUE(plays({}));
  EXPECT_FALSE(plays(KeyModifiers::shift()));
  volumeSound_->publish(std::nullopt);
  EXPECT_FALSE(plays({}));
  EXPECT_TRUE(plays(KeyModifiers::shift()));
  // The app-wide sounds switch silences it whatever the desktop says.
  volumeSound_->publish(true);
  ASSERT_TRUE(context_.settings().write(settings::playSounds, false));
  EXPECT_FALSE(plays({}));
  EXPECT_TRUE(lastDiagnostic("volume sound").contains("invented volume sound setting"));
}

TEST_F(HudProviderTest, ChangesMadeElsewhereShowUnlessTheyComeWithANewOutput) {
  provider_->start();
  QSignalSpy changes(&view(), &HudViewModel::changed);
  volume_->publish(VolumeReading{"invented-output", 0.3, false, AudioTransport::builtIn});
  EXPECT_EQ(view().percent(), 30);
  volume_->publish(VolumeReading{"headphones", 0.8, false, AudioTransport::usb});
  display_->change(0.9);
  EXPECT_EQ(view().kind(), "brightness");
  EXPECT_EQ(changes.count(), 2);

  // The keyboard light is watched only while its setting is on.
  keyboard_->change(0.2);
  EXPECT_EQ(changes.count(), 2);
  ASSERT_TRUE(context_.settings().write(settings::experimentalKeyboardBacklight, true));
  keyboard_->change(0.3);
  EXPECT_EQ(view().kind(), "keyboardBacklight");
  ASSERT_TRUE(context_.settings().write(settings::volumeHUDEnabled, false));
  volume_->publish(VolumeReading{"headphones", 0.1, false, AudioTransport::usb});
  EXPECT_EQ(view().kind(), "keyboardBacklight");
}

TEST_F(HudProviderTest, KeysAreHeldOnlyWhereTindraCanChangeTheLevel) {
  keys_->heldElsewhere = {Key::brightnessUp};
  provider_->start();
  EXPECT_FALSE(keys_->holds(Key::illuminationUp));  // the keyboard light is off by default
  EXPECT_TRUE(lastDiagnostic("keys").contains("only watches the level for XF86MonBrightnessUp"));
  EXPECT_TRUE(lastDiagnostic("keys").contains("leaves XF86KbdBrightnessUp"));

  display_->setAccess(BrightnessAccess::readOnly, DiagnosticsLog::Outcome::degraded,
                      Sentence::verbatim("no logind"));
  EXPECT_FALSE(keys_->holds(Key::brightnessDown));
  EXPECT_EQ(provider_->keyContext().brightness, BrightnessAccess::readOnly);

  ASSERT_TRUE(context_.settings().write(settings::volumeHUDEnabled, false));
  EXPECT_FALSE(keys_->holds(Key::soundUp));
  ASSERT_TRUE(context_.settings().write(settings::volumeHUDEnabled, true));
  volume_->publish(VolumeReading{"fixed", 1, false, AudioTransport::hdmi, false, false});
  EXPECT_FALSE(keys_->holds(Key::soundUp));  // an output without a volume yields its keys
  volume_->publish(std::nullopt);
  EXPECT_FALSE(provider_->keyContext().volumeControllable);
}

TEST_F(HudProviderTest, LightKeysStepTheLightAndIgnoredKeyboardWritesGiveTheKeysBack) {
  ASSERT_TRUE(context_.settings().write(settings::experimentalKeyboardBacklight, true));
  provider_->start();
  keys_->tap(Key::brightnessDown);
  EXPECT_EQ(display_->reading()->level, 0.4375);
  EXPECT_EQ(view().symbol(), "sun.min.fill");

  EXPECT_TRUE(keys_->holds(Key::illuminationUp));
  keys_->tap(Key::illuminationUp);
  EXPECT_EQ(keyboard_->reading()->level, 0.5625);
  keyboard_->ignoresWrites = true;
  now_ += 5;
  keys_->tap(Key::illuminationUp);
  EXPECT_TRUE(keys_->holds(Key::illuminationUp));  // one ignored write is not yet a pattern
  now_ += 5;
  keys_->tap(Key::illuminationUp);
  EXPECT_FALSE(keys_->holds(Key::illuminationUp));
  EXPECT_EQ(provider_->keyContext().keyboardBacklight, KeyboardBacklightAccess::readOnly);
  EXPECT_TRUE(lastDiagnostic("keyboard light").contains("ignores Tindra's changes"));
}

// A level that cannot be read turns the keyboard light's setting off and gives its keys back;
// only turning it on again reads the light anew. A light that is not there is said as such.
TEST_F(HudProviderTest, AnUnreadableKeyboardLightTurnsItsSettingOffUntilTurnedOnAgain) {
  using Trouble = HudProvider::KeyboardTrouble;
  QSignalSpy troubles(provider_.get(), &HudProvider::keyboardTroubleChanged);
  ASSERT_TRUE(context_.settings().write(settings::experimentalKeyboardBacklight, true));
  provider_->start();
  EXPECT_EQ(provider_->keyboardTrouble(), Trouble::none);
  ASSERT_TRUE(keys_->holds(Key::illuminationUp));

  keyboard_->reportUnreadable(Sentence::verbatim("lid closed"));
  EXPECT_EQ(provider_->keyboardTrouble(), Trouble::unreadable);
  EXPECT_FALSE(context_.settings().read(settings::experimentalKeyboardBacklight));
  EXPECT_FALSE(keys_->holds(Key::illuminationUp));
  // The light answering on its own does not undo what Settings says.
  keyboard_->change(0.3);
  EXPECT_EQ(provider_->keyboardTrouble(), Trouble::unreadable);
  EXPECT_EQ(keyboard_->readAgainCount, 0);

  ASSERT_TRUE(context_.settings().write(settings::experimentalKeyboardBacklight, true));
  EXPECT_EQ(keyboard_->readAgainCount, 1);
  EXPECT_EQ(provider_->keyboardTrouble(), Trouble::none);
  EXPECT_TRUE(keys_->holds(Key::illuminationUp));
  // Unreadable again: off again, said once more.
  const auto before = troubles.count();
  keyboard_->reportUnreadable(Sentence::verbatim("lid closed"));
  EXPECT_FALSE(context_.settings().read(settings::experimentalKeyboardBacklight));
  EXPECT_EQ(troubles.count(), before + 1);
}

TEST_F(HudProviderTest, AKeyboardLightThatIsNotThereIsNotFoundOnlyOnceLookedFor) {
  HudProvider provider(
      context_,
      HudBackends{std::make_unique<FakeVolumeBackend>(),
                  std::make_unique<FakeBacklightBackend>("panel", 0.5),
                  std::make_unique<BacklightBackend::Null>(Sentence::verbatim("no system bus")),
                  std::make_unique<FakeMediaKeySource>()});
  provider.start();
  // Not looked for while its setting is off.
  EXPECT_EQ(provider.keyboardTrouble(), HudProvider::KeyboardTrouble::none);
  ASSERT_TRUE(context_.settings().write(settings::experimentalKeyboardBacklight, true));
  EXPECT_EQ(provider.keyboardTrouble(), HudProvider::KeyboardTrouble::notFound);
  // Not turned off: nothing was read that could be wrong, and a light may come with a dock.
  EXPECT_TRUE(context_.settings().read(settings::experimentalKeyboardBacklight));
}

}  // namespace
}  // namespace tindra
