#include "levels/hud_provider.h"
#include "base/backend_selection.h"
#include "levels/fake_backlight_backend.h"
#include "levels/fake_volume_sound_preference.h"

#include <QStringList>
#include <array>

#include "base/activity_center.h"
#include "base/diagnostics_log.h"
#include "base/logging_categories.h"
#include "base/qt_text.h"
#include "hud/brightness_yield_policy.h"
#include "hud/hud_display_duration.h"
#include "hud/keyboard_backlight_policy.h"
#include "hud/media_key_router.h"
#include "hud/volume_feedback_policy.h"
#include "hud/volume_yield_policy.h"
#include "settings/settings_keys.h"

namespace tindra {

namespace {

using Key = SystemDefinedKeyEvent::Key;

template <class... F>
struct Overloaded : F... {
  using F::operator()...;
};

constexpr std::array routedKeys{Key::soundUp,         Key::soundDown,      Key::mute,
                                Key::brightnessUp,    Key::brightnessDown, Key::illuminationUp,
                                Key::illuminationDown};
// Plain, Shift (the volume sound's inverse) and Option-Shift (fine steps); every other
// combination keeps its meaning on the desktop.
constexpr std::array heldModifiers{KeyModifiers(), KeyModifiers::shift(),
                                   KeyModifiers::option() | KeyModifiers::shift()};

bool contains(const std::vector<KeyGrab>& grabs, Key key) {
  return std::ranges::any_of(grabs, [key](const KeyGrab& grab) { return grab.key == key; });
}

}  // namespace

HudProvider::HudProvider(ProviderContext context, HudBackends backends, QObject* parent)
    : Provider(context, id, parent),
      volumeBackend_(std::move(backends.volume)),
      keys_(std::move(backends.keys)),
      commands_(backends.commands ? std::move(backends.commands)
                                  : std::make_unique<LevelCommandSource::Null>(
                                        Sentence::verbatim("no level commands"))),
      volumeSound_(backends.volumeSound ? std::move(backends.volumeSound)
                                        : std::make_unique<VolumeSoundPreference::Null>(
                                              Sentence::verbatim("no desktop volume sound setting"),
                                              DiagnosticsLog::Outcome::ok)),
      display_{HUDKind::brightness, std::move(backends.display), {}, {}},
      keyboard_{HUDKind::keyboardBacklight, std::move(backends.keyboard), {}, {}} {
  VolumeBackend* volume = volumeBackend_.get();
  connect(volume, &VolumeBackend::readingChanged, this, &HudProvider::onVolume);
  connect(volume, &VolumeBackend::checkChanged, this,
          [this, volume] { record(QStringLiteral("volume"), volume->check()); });
  for (Light* light : {&display_, &keyboard_}) {
    connect(light->backend.get(), &BacklightBackend::readingChanged, this,
            [this, light] { onLight(*light); });
    connect(light->backend.get(), &BacklightBackend::checkChanged, this, [this, light] {
      record(sourceName(*light), light->backend->check());
      updateRouting();
    });
  }
  connect(keyboard_.backend.get(), &BacklightBackend::writeFinished, this,
          &HudProvider::onKeyboardWrite);
  connect(keyboard_.backend.get(), &BacklightBackend::levelUnreadable, this,
          &HudProvider::onKeyboardUnreadable);
  connect(keyboard_.backend.get(), &BacklightBackend::checkChanged, this,
          &HudProvider::updateKeyboardTrouble);
  connect(keyboard_.backend.get(), &BacklightBackend::readingChanged, this,
          &HudProvider::updateKeyboardTrouble);
  connect(keys_.get(), &MediaKeySource::pressed, this, &HudProvider::handleKey);
  connect(keys_.get(), &MediaKeySource::checkChanged, this, &HudProvider::recordKeys);
  commands_->setHandler([this](const LevelCommand& command) {
    return handleKey(command.press(std::chrono::steady_clock::now()));
  });
  connect(commands_.get(), &LevelCommandSource::checkChanged, this,
          [this] { record(QStringLiteral("level commands"), commands_->check()); });
  connect(volumeSound_.get(), &VolumeSoundPreference::checkChanged, this,
          [this] { record(QStringLiteral("volume sound"), volumeSound_->check()); });
  observation_ = settings().observe({std::string(settings::volumeHUDEnabled.name),
                                     std::string(settings::brightnessHUDEnabled.name),
                                     std::string(settings::experimentalKeyboardBacklight.name)},
                                    [this](std::string_view) {
                                      onKeyboardSetting();
                                      updateRouting();
                                    });
  connect(&activities(), &ActivityCenter::currentChanged, this,
          [this](ActivityKind kind) { viewModel_.setShowing(kind == ActivityKind::hud); });
}

void HudProvider::start() {
  record(QStringLiteral("volume"), volumeBackend_->check());
  volumeBackend_->start();
  display_.backend->start();
  record(sourceName(display_), display_.backend->check());
  startKeyboardIfWanted();
  keys_->start();
  commands_->start();
  record(QStringLiteral("level commands"), commands_->check());
  volumeSound_->start();
  record(QStringLiteral("volume sound"), volumeSound_->check());
  started_ = true;
  updateRouting();
}

QString HudProvider::sourceName(const Light& light) const {
  return light.kind == HUDKind::brightness ? QStringLiteral("brightness")
                                           : QStringLiteral("keyboard light");
}

void HudProvider::record(const QString& source, const ServiceCheck& check) {
  diagnostics().record(lcHud(), source, check.outcome, check.text);
}

void HudProvider::startKeyboardIfWanted() {
  if (keyboardStarted_) return;
  if (!settings().read(settings::experimentalKeyboardBacklight)) {
    qCInfo(lcHud) << "Keyboard backlight HUD off; UPower's keyboard backlight is not used";
    return;
  }
  keyboardStarted_ = true;
  keyboard_.backend->start();
  record(sourceName(keyboard_), keyboard_.backend->check());
  updateKeyboardTrouble();
}

void HudProvider::onKeyboardSetting() {
  if (!settings().read(settings::experimentalKeyboardBacklight)) return;
  startKeyboardIfWanted();
  // Turned on again after the level could not be read: another try.
  if (keyboardTrouble_ == KeyboardTrouble::unreadable) {
    setKeyboardTrouble(KeyboardTrouble::none);
    keyboard_.backend->readAgain();
  }
}

// A level that cannot be read (a closed lid, a light between states) cannot be stepped; the
// setting goes off, so that the keys go back to the desktop and Settings says why.
void HudProvider::onKeyboardUnreadable() {
  setKeyboardTrouble(KeyboardTrouble::unreadable);
  if (settings().read(settings::experimentalKeyboardBacklight)) {
    (void)settings().write(settings::experimentalKeyboardBacklight, false);
  }
}

void HudProvider::updateKeyboardTrouble() {
  // An unreadable level is said until the setting is turned on again.
  if (keyboardTrouble_ == KeyboardTrouble::unreadable) return;
  const bool missing = keyboardStarted_ && !keyboard_.backend->reading() &&
                       keyboard_.backend->check().outcome != DiagnosticsLog::Outcome::ok;
  setKeyboardTrouble(missing ? KeyboardTrouble::notFound : KeyboardTrouble::none);
}

void HudProvider::setKeyboardTrouble(KeyboardTrouble trouble) {
  if (assignIfChanged(keyboardTrouble_, trouble)) emit keyboardTroubleChanged();
}

// Keys ------------------------------------------------------------------------------------------

std::vector<KeyGrab> HudProvider::grabsFor(const MediaKeyContext& context) {
  std::vector<KeyGrab> grabs;
  for (const Key key : routedKeys) {
    for (const KeyModifiers modifiers : heldModifiers) {
      if (MediaKeyRouter::decide(key, true, false, modifiers, context).consumesEvent()) {
        grabs.push_back({key, modifiers});
      }
    }
  }
  return grabs;
}

bool HudProvider::handleKey(const MediaKeyPress& press) {
  const MediaKeyDecision decision = MediaKeyRouter::decide(
      press.key, press.isKeyDown, press.isRepeat, press.modifiers, keyContext_);
  const std::optional<MediaKeyAction> action = decision.action();
  // A key Tindra does not take went on to the desktop; the change it makes is shown when the
  // level moves.
  if (!action || !decision.consumesEvent()) return false;
  keyAt_ = press.receivedAt;
  std::visit(
      Overloaded{
          [&](const MediaKeyAction::Volume& volume) { stepVolume(volume.action, press.modifiers); },
          [&](const MediaKeyAction::Brightness& step) { stepLight(display_, step.up, step.fine); },
          [&](const MediaKeyAction::KeyboardBacklight& step) {
            stepLight(keyboard_, step.up, step.fine);
          },
          [](const auto&) {},
      },
      action->value());
  keyAt_.reset();
  return true;
}

void HudProvider::stepVolume(VolumeAction action, KeyModifiers modifiers) {
  if (!volume_) return;
  const double now = activities().now();
  // The server reports a write a moment later; quick presses build on what was written.
  const double sinceWrite = now - volumePending_.pendingAt();
  const bool recentlyWritten = volumePending_.pendingLevel() && sinceWrite >= 0 &&
                               sinceWrite < PendingLevelStepper::trustInterval;
  const VolumeState base{volumePending_.base(volume_->level, now),
                         recentlyWritten ? mutedWritten_ : volume_->muted};
  const VolumeState next = base.applying(action);
  volumePending_.record(next.level, now);
  mutedWritten_ = next.isMuted;
  const HUDState state(HUDKind::volume, next.level, next.isMuted);
  ownWrites_.remember(state, now);  // before writing: a backend may answer at once
  const VolumeReading read = *volume_;
  if (next.level != read.level) volumeBackend_->setLevel(next.level);
  if (next.isMuted != read.muted) volumeBackend_->setMuted(next.isMuted);
  show(state);
  if (settings().read(settings::playSounds) &&
      VolumeFeedbackPolicy::shouldPlay(action, next, volumeSound_->systemSetting(),
                                       settings().read(settings::volumeFeedbackFallback), modifiers,
                                       false)) {
    volumeBackend_->playFeedback();
  }
}

void HudProvider::stepLight(Light& light, bool up, bool fine) {
  const std::optional<BacklightReading>& reading = light.backend->reading();
  if (!reading) return;
  const double now = activities().now();
  const double level = light.pending.step(up, fine, reading->level, now);
  if (light.kind == HUDKind::keyboardBacklight) keyboardBefore_ = reading->level;
  const HUDState state(light.kind, level, false, reading->external);
  ownWrites_.remember(state, now);
  light.backend->setLevel(level);
  show(state);
}

// Changes reported by the services ----------------------------------------------------------------

void HudProvider::onVolume() {
  const std::optional<VolumeReading> reading = volumeBackend_->reading();
  const bool sameOutput = volume_ && reading && volume_->output == reading->output;
  const bool moved =
      sameOutput && (volume_->level != reading->level || volume_->muted != reading->muted);
  if (!sameOutput) volumePending_ = {};
  volume_ = reading;
  updateRouting();
  if (!moved || !settings().read(settings::volumeHUDEnabled)) return;
  const HUDState state(HUDKind::volume, reading->level, reading->muted);
  if (!ownWrites_.isEcho(state, activities().now())) show(state);
}

void HudProvider::onLight(Light& light) {
  const std::optional<BacklightReading>& reading = light.backend->reading();
  const bool sameDevice = light.last && reading && light.last->device == reading->device;
  const bool moved = sameDevice && light.last->level != reading->level;
  if (!sameDevice) light.pending = {};
  const bool appeared = light.last.has_value() != reading.has_value();
  light.last = reading;
  if (appeared) updateRouting();
  if (!moved || !enabled(light.kind)) return;
  const HUDState state(light.kind, reading->level, false, reading->external);
  if (!ownWrites_.isEcho(state, activities().now())) show(state);
}

void HudProvider::onKeyboardWrite(double requested, double after) {
  const auto verdict = KeyboardBacklightWriteMonitor::verdict(keyboardBefore_, requested, after);
  if (!keyboardMonitor_.record(verdict) || keyboardWritesIgnored_) return;
  keyboardWritesIgnored_ = true;
  diagnostics().record(lcHud(), sourceName(keyboard_), DiagnosticsLog::Outcome::degraded,
                       Sentence(QT_TR_NOOP("the keyboard backlight ignores Tindra's changes: the "
                                           "keys go back to the desktop and the notch only shows "
                                           "the level"),
                                tr));
  updateRouting();
}

void HudProvider::show(const HUDState& state) {
  const double now = activities().now();
  const HUDBarMotion motion =
      HUDBarMotion::forInterval(lastShownAt_ ? std::optional(now - *lastShownAt_) : std::nullopt);
  lastShownAt_ = now;
  viewModel_.show(state, motion, settings().read(settings::hudBarStyle),
                  settings().read(settings::hudTint), keyAt_);
  activities().offer(ActivityEvent::began(
      ActivityKind::hud, HUDDisplayDuration::clamped(settings().read(settings::hudDuration))));
}

bool HudProvider::enabled(HUDKind kind) const {
  switch (kind) {
    case HUDKind::volume:
      return settings().read(settings::volumeHUDEnabled);
    case HUDKind::brightness:
      return settings().read(settings::brightnessHUDEnabled);
    case HUDKind::keyboardBacklight:
      return settings().read(settings::experimentalKeyboardBacklight);
  }
  return false;
}

// Routing -----------------------------------------------------------------------------------------

KeyboardBacklightAccess HudProvider::keyboardAccess() const {
  if (!settings().read(settings::experimentalKeyboardBacklight)) {
    return KeyboardBacklightAccess::unavailable;
  }
  const BrightnessAccess access = keyboard_.backend->access();
  const bool available =
      keyboard_.backend->reading().has_value() && access != BrightnessAccess::unavailable;
  return KeyboardBacklightPolicy::access(available, access == BrightnessAccess::readWrite,
                                         keyboardWritesIgnored_);
}

void HudProvider::updateRouting() {
  if (!started_) return;  // once, at the end of start(), for all that start reported
  MediaKeyContext context;
  context.volumeHUDEnabled = settings().read(settings::volumeHUDEnabled);
  context.brightnessHUDEnabled = settings().read(settings::brightnessHUDEnabled);
  // Nothing on Linux plays BetterDisplay's part.
  context.volumeControllable = volume_ && !VolumeYieldPolicy::shouldYield(
                                              volume_->transport, volume_->volumeSettable, false);
  context.volumeHasMute = volume_ && volume_->muteSettable;
  context.brightness = BrightnessYieldPolicy::effectiveAccess(
      display_.backend->reading() ? display_.backend->access() : BrightnessAccess::unavailable,
      false);
  context.keyboardBacklight = keyboardAccess();
  if (routed_ && context == keyContext_) return;
  routed_ = true;
  keyContext_ = context;
  qCInfo(lcMediaKeys).noquote()
      << QStringLiteral("Key routing: volume %1, brightness %2, keyboard %3")
             .arg(context.volumeControllable && context.volumeHUDEnabled ? "true" : "false",
                  toQString(tindra::name(context.brightness)),
                  toQString(tindra::name(context.keyboardBacklight)));
  wanted_ = grabsFor(context);
  keys_->setWanted(wanted_);
  recordKeys();
}

void HudProvider::recordKeys() {
  const std::vector<KeyGrab> refused = keys_->refused();
  QStringList held, watched, left;
  for (const Key key : routedKeys) {
    if (contains(refused, key)) {
      watched << keyName(key);
    } else if (contains(wanted_, key)) {
      held << keyName(key);
    } else {
      left << keyName(key);
    }
  }
  std::vector<Sentence> parts;
  const ServiceCheck& check = keys_->check();
  if (check.outcome != DiagnosticsLog::Outcome::ok) parts.push_back(check.text);
  if (check.outcome == DiagnosticsLog::Outcome::ok && !held.isEmpty()) {
    parts.push_back(Sentence(QT_TR_NOOP("holds %1"), tr).arg(held.join(QStringLiteral(", "))));
  }
  if (!watched.isEmpty()) {
    parts.push_back(
        Sentence(QT_TR_NOOP("only watches the level for %1 (another program holds them)"), tr)
            .arg(watched.join(QStringLiteral(", "))));
  }
  if (!left.isEmpty()) {
    parts.push_back(
        Sentence(QT_TR_NOOP("leaves %1 to the desktop"), tr).arg(left.join(QStringLiteral(", "))));
  }
  Sentence text;
  for (const Sentence& part : parts) text = text.isEmpty() ? part : text.followedBy(part);
  const bool degraded = check.outcome != DiagnosticsLog::Outcome::ok || !watched.isEmpty();
  diagnostics().record(lcMediaKeys(), QStringLiteral("keys"),
                       degraded ? DiagnosticsLog::Outcome::degraded : DiagnosticsLog::Outcome::ok,
                       text);
}

std::unique_ptr<HudProvider> HudProvider::make(ProviderContext& context) {
  SharedBackends& shared = *context.shared;
  HudBackends backends{
      VolumeBackend::shared(shared),
      chooseBackend(
          id, shared,
          [] {
            return std::make_unique<FakeBacklightBackend>(QStringLiteral("invented-panel"), 0.7);
          },
          [&] { return BacklightBackend::displayForPlatform(shared); }),
      chooseBackend(
          id, shared,
          [] {
            return std::make_unique<FakeBacklightBackend>(QStringLiteral("invented-keyboard"), 0.4);
          },
          [&] { return BacklightBackend::keyboardForPlatform(shared); }),
      MediaKeySource::forPlatform(shared),
      LevelCommandSource::forPlatform(shared),
      chooseBackend(
          id, shared, [] { return std::make_unique<FakeVolumeSoundPreference>(); },
          [&] { return VolumeSoundPreference::forPlatform(shared); })};
  return std::make_unique<HudProvider>(context, std::move(backends));
}

// The level indicator is a section only while it lasts, before every other.
ProviderViews HudProvider::views() {
  return {.compact = {{ActivityKind::hud, QStringLiteral("levels/HudCompact.qml")}},
          .sections = {{.name = QStringLiteral("hud"),
                        .rank = 0,
                        .file = QStringLiteral("levels/HudPanel.qml"),
                        .transient = true}}};
}

}  // namespace tindra
