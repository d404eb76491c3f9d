// HudProvider ("hud"): the level indicator for the output volume, the display's brightness and
// the keyboard's backlight. It takes the keys from the desktop only where it can really change
// the level (the routing context, recomputed whenever an input changes), steps and writes the
// level on a key press and shows what it wrote at once. A change made by anything else (a mixer,
// pactl, a headset button, the desktop's own keys) shows the indicator too; the echoes of
// Tindra's own writes, the first reading and a move to another output do not.
#pragma once

#include <chrono>
#include <memory>

#include "base/provider.h"
#include "base/provider_views.h"
#include "hud/keyboard_backlight_write_monitor.h"
#include "hud/media_key_action.h"
#include "hud/media_key_context.h"
#include "hud/pending_level_stepper.h"
#include "hud/volume_state.h"
#include "levels/backlight_backend.h"
#include "levels/hud_view_model.h"
#include "levels/level_command_source.h"
#include "levels/media_key_source.h"
#include "levels/own_writes.h"
#include "levels/volume_backend.h"
#include "levels/volume_sound_preference.h"
#include "settings/settings_store.h"

namespace tindra {

struct HudBackends {
  std::shared_ptr<VolumeBackend> volume;  // also followed by the accessories
  std::unique_ptr<BacklightBackend> display;
  std::unique_ptr<BacklightBackend> keyboard;
  std::unique_ptr<MediaKeySource> keys;
  // `tindra level …` commands; none, none taken.
  std::unique_ptr<LevelCommandSource> commands = nullptr;
  // Whether the desktop plays a sound for a volume change; none, Tindra's setting decides.
  std::unique_ptr<VolumeSoundPreference> volumeSound = nullptr;
};

class HudProvider final : public Provider {
  Q_OBJECT

 public:
  static constexpr std::string_view id = "hud";
  // With the backends this platform gives it (the fake ones when TINDRA_FAKE names "hud").
  static std::unique_ptr<HudProvider> make(ProviderContext& context);
  static ProviderViews views();

  HudProvider(ProviderContext context, HudBackends backends, QObject* parent = nullptr);

  void start() override;
  HudViewModel* viewModel() override { return &viewModel_; }

  // What keeps the keyboard light from being used, for Settings: none found (no light, or no
  // service that has one), or a level that could not be read, which turns its setting off until
  // the user turns it on again and it is read anew.
  enum class KeyboardTrouble { none, notFound, unreadable };
  KeyboardTrouble keyboardTrouble() const { return keyboardTrouble_; }

  const MediaKeyContext& keyContext() const { return keyContext_; }
  // A key press, routed as the key source's are (the demo tour presses keys this way); true
  // when Tindra took it and stepped a level.
  bool handleKey(const MediaKeyPress& press);
  // The key and modifier combinations the router would swallow in `context`: the ones to hold.
  static std::vector<KeyGrab> grabsFor(const MediaKeyContext& context);

 signals:
  void keyboardTroubleChanged();

 private:
  // A light the keys step: the display's backlight or the keyboard's.
  struct Light {
    HUDKind kind;
    std::unique_ptr<BacklightBackend> backend;
    PendingLevelStepper pending;
    std::optional<BacklightReading> last;  // to tell a change from a new device
  };

  void stepVolume(VolumeAction action, KeyModifiers modifiers);
  void stepLight(Light& light, bool up, bool fine);
  void onVolume();
  void onLight(Light& light);
  void onKeyboardWrite(double requested, double after);
  void show(const HUDState& state);
  bool enabled(HUDKind kind) const;
  QString sourceName(const Light& light) const;
  void record(const QString& source, const ServiceCheck& check);
  void recordKeys();
  KeyboardBacklightAccess keyboardAccess() const;
  void startKeyboardIfWanted();
  void onKeyboardSetting();
  void onKeyboardUnreadable();
  void updateKeyboardTrouble();
  void setKeyboardTrouble(KeyboardTrouble trouble);
  void updateRouting();

  std::shared_ptr<VolumeBackend> volumeBackend_;
  std::unique_ptr<MediaKeySource> keys_;
  std::unique_ptr<LevelCommandSource> commands_;
  std::unique_ptr<VolumeSoundPreference> volumeSound_;
  Light display_;
  Light keyboard_;
  bool keyboardStarted_ = false;
  bool keyboardWritesIgnored_ = false;
  KeyboardTrouble keyboardTrouble_ = KeyboardTrouble::none;
  double keyboardBefore_ = 0;
  KeyboardBacklightWriteMonitor keyboardMonitor_;
  PendingLevelStepper volumePending_;
  bool mutedWritten_ = false;  // the mute state written with volumePending_'s level
  std::optional<VolumeReading> volume_;
  OwnWrites ownWrites_;
  MediaKeyContext keyContext_;
  bool started_ = false;
  bool routed_ = false;  // keyContext_ has been computed once
  std::vector<KeyGrab> wanted_;
  std::optional<std::chrono::steady_clock::time_point> keyAt_;  // of the press being shown
  std::optional<double> lastShownAt_;
  SettingsObservation observation_;
  HudViewModel viewModel_;
};

}  // namespace tindra
