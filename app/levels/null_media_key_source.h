// NullMediaKeySource: where no program may take the keys (a Wayland session, no display). The
// desktop keeps them; the level changes it makes are still shown.
#pragma once

#include "levels/media_key_source.h"

namespace tindra {

class NullMediaKeySource final : public MediaKeySource {
 public:
  explicit NullMediaKeySource(QString reason, QObject* parent = nullptr)
      : MediaKeySource(parent), reason_(std::move(reason)) {}

  void start() override {}
  void setWanted(const std::vector<KeyGrab>&) override {}
  std::vector<KeyGrab> refused() const override { return {}; }
  ServiceCheck check() const override { return {DiagnosticsLog::Outcome::degraded, reason_}; }

 private:
  QString reason_;
};

}  // namespace tindra
