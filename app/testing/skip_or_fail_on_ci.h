// SKIP_OR_FAIL_ON_CI: what a desktop test does when a service it needs (a mocked D-Bus service,
// the sound server, a display, a window manager, a player) did not start. On a developer's
// machine that is a missing package, so the test skips and says why; on CI (CI=true) it is a
// broken machine, which a skip would hide, so the test fails.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <string_view>

namespace tindra {

inline bool onCi() {
  const char* ci = std::getenv("CI");
  return ci != nullptr && std::string_view(ci) == "true";
}

}  // namespace tindra

// `reason` is anything a gtest message takes. Returns from the calling function, so it belongs
// in SetUp or a test body.
#define SKIP_OR_FAIL_ON_CI(reason)                                            \
  do {                                                                        \
    if (::tindra::onCi()) FAIL() << (reason) << " (a service missing on CI)"; \
    GTEST_SKIP() << (reason);                                                 \
  } while (false)
