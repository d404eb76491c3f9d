// ScopedLocale: switches one C locale category (LC_NUMERIC, ...) for as long as it lives and puts
// the previous setting back, for tests that prove an output does not depend on the locale.
#pragma once

#include <clocale>
#include <string>

namespace tindra {

class ScopedLocale {
 public:
  ScopedLocale(int category, const char* name) : category_(category) {
    const char* current = std::setlocale(category, nullptr);
    previous_ = current != nullptr ? current : "C";
    active_ = std::setlocale(category, name) != nullptr;
  }
  ~ScopedLocale() { std::setlocale(category_, previous_.c_str()); }
  ScopedLocale(const ScopedLocale&) = delete;
  ScopedLocale& operator=(const ScopedLocale&) = delete;

  // False when the machine does not have the locale; nothing was changed then.
  bool active() const { return active_; }

 private:
  int category_;
  std::string previous_;
  bool active_ = false;
};

}  // namespace tindra
