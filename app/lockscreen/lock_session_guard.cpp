#include "lockscreen/lock_session_guard.h"

#include <fstream>

#include "base/logging_categories.h"
#include "base/qt_text.h"

namespace tindra {

std::string LockSessionGuard::readBootID(const std::filesystem::path& file) {
  std::ifstream in(file);
  std::string id;
  std::getline(in, id);
  return id;
}

LockSessionGuard::LockSessionGuard(std::filesystem::path folder, std::string bootID,
                                   std::string osVersion)
    : file_(folder / LockSessionRecord::fileName),
      bootID_(std::move(bootID)),
      osVersion_(std::move(osVersion)) {}

LockSessionPolicy::Launch LockSessionGuard::launch() {
  LockSessionPolicy::Launch launch =
      LockSessionPolicy::launchVerdictFromRead(file_.read(), bootID_);
  record_ = launch.record;
  if (launch.recordChanged) save(record_);
  return launch;
}

void LockSessionGuard::begin(double now) {
  record_ = LockSessionPolicy::recordForBegin(record_, {now, bootID_, osVersion_});
  save(record_);
}

void LockSessionGuard::end() {
  record_ = LockSessionPolicy::recordForEnd();
  save(record_);
}

void LockSessionGuard::save(const LockSessionRecord& record) {
  if (const auto saved = file_.write(record.encoded()); !saved) {
    qCWarning(lcLockScreen).noquote() << toQString(saved.error().message(file_.url()));
  }
}

}  // namespace tindra
