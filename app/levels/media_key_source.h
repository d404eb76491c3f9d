// MediaKeySource: the volume, brightness and keyboard-light keys, taken from the desktop only
// where Tindra handles them. The provider says which key and modifier combinations it wants;
// the source holds exactly those, and reports the ones another program already holds (Tindra
// then only watches the level that program changes).
#pragma once

#include <chrono>
#include <vector>

#include "base/backend.h"
#include "base/shared_backends.h"
#include "hud/key_modifiers.h"
#include "hud/system_defined_key_event.h"

namespace tindra {

struct KeyGrab {
  SystemDefinedKeyEvent::Key key;
  KeyModifiers modifiers;

  friend bool operator==(const KeyGrab&, const KeyGrab&) = default;
};

struct MediaKeyPress {
  SystemDefinedKeyEvent::Key key;
  bool isKeyDown = true;
  bool isRepeat = false;
  KeyModifiers modifiers;
  std::chrono::steady_clock::time_point receivedAt;  // when Tindra read the event
};

class MediaKeySource : public Backend {
  Q_OBJECT

 public:
  using Backend::Backend;
  class Null;

  // This platform's keys: the real source, or the do-nothing one where no program may take them
  // (made in the platform's folder). Never fake: with TINDRA_FAKE=hud the real keys step the
  // invented levels.
  static std::unique_ptr<MediaKeySource> forPlatform(SharedBackends& shared);

  // Holds exactly `wanted` from now on, releasing the rest.
  virtual void setWanted(const std::vector<KeyGrab>& wanted) = 0;
  // The keys of `wanted` that another program holds.
  virtual std::vector<KeyGrab> refused() const = 0;

 signals:
  void pressed(const tindra::MediaKeyPress& press);
};

// Where no program may take the keys (a Wayland session, no display): the desktop keeps them,
// and the level changes it makes are still shown.
class MediaKeySource::Null final : public NullBackend<MediaKeySource> {
 public:
  using NullBackend::NullBackend;
  void setWanted(const std::vector<KeyGrab>&) override {}
  std::vector<KeyGrab> refused() const override { return {}; }
};

// A key's name for logs and diagnostics: "XF86AudioRaiseVolume".
QString keyName(SystemDefinedKeyEvent::Key key);

}  // namespace tindra
