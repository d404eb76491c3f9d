// LevelCommandSource: where `tindra level …` commands reach the running Tindra. Each is handed
// to the handler, which steps the level as for the key and says whether it did.
#pragma once

#include <QTextStream>
#include <functional>
#include <memory>

#include "base/backend.h"
#include "base/shared_backends.h"
#include "levels/level_command.h"

namespace tindra {

class LevelCommandSource : public Backend {
  Q_OBJECT

 public:
  using Handler = std::function<bool(const LevelCommand&)>;
  using Backend::Backend;
  class Null;

  // This platform's route for the commands, or the do-nothing one where there is none.
  static std::unique_ptr<LevelCommandSource> forPlatform(SharedBackends& shared);
  // Sends `command` to the Tindra running in this session, from the `tindra level` process.
  // Returns the exit status: 0 stepped, 1 not (why is written to `err`).
  static int sendForPlatform(const LevelCommand& command, QTextStream& err);

  void setHandler(Handler handler) { handler_ = std::move(handler); }

 protected:
  bool handle(const LevelCommand& command) const { return handler_ && handler_(command); }

 private:
  Handler handler_;
};

class LevelCommandSource::Null final : public NullBackend<LevelCommandSource> {
 public:
  using NullBackend::NullBackend;
};

}  // namespace tindra
