// LockSessionGuard: the record on disk of an open lock-screen session ("lock-session.json",
// saved through DurableFile), so that the next launch can tell whether Tindra or the machine
// stopped while the screen was locked. The boot's identity is the kernel's boot id.
#pragma once

#include <filesystem>
#include <string>

#include "lockscreen/lock_session_policy.h"
#include "settings/durable_file.h"

namespace tindra {

class LockSessionGuard {
 public:
  static constexpr const char* bootIDFile = "/proc/sys/kernel/random/boot_id";

  // The boot id in `file`, without its line break; empty when it cannot be read.
  static std::string readBootID(const std::filesystem::path& file = bootIDFile);

  LockSessionGuard(std::filesystem::path folder, std::string bootID, std::string osVersion);

  // Reads the record, decides and saves what is to be kept. Call once, before any session.
  LockSessionPolicy::Launch launch();
  // A session began at `now` (seconds since 1970) / ended.
  void begin(double now);
  void end();

  const std::filesystem::path& file() const { return file_.url(); }
  const std::string& osVersion() const { return osVersion_; }

 private:
  void save(const LockSessionRecord& record);

  DurableFile file_;
  std::string bootID_;
  std::string osVersion_;
  LockSessionRecord record_;
};

}  // namespace tindra
