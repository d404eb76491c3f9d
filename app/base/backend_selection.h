// Which backend a provider gets, decided in one place for each: the fake backend when the
// TINDRA_FAKE environment variable names the provider ("battery,media", or "all"), else this
// platform's backend, which is the do-nothing one where the service cannot be there (see
// backend.h). Fakes show invented data, so they are only ever on when asked for.
#pragma once

#include <memory>
#include <string_view>

#include "base/shared_backends.h"

namespace tindra {

// True when TINDRA_FAKE asks for `provider`'s fake backend.
bool fakeBackendRequested(std::string_view provider);

// `makeFake()` when TINDRA_FAKE asks for `provider`'s fake (kept in `shared` for the demo), else
// `makePlatform()`; both give a std::unique_ptr, the platform's of the interface.
template <class MakeFake, class MakePlatform>
auto chooseBackend(std::string_view provider, SharedBackends& shared, MakeFake makeFake,
                   MakePlatform makePlatform) -> decltype(makePlatform()) {
  if (!fakeBackendRequested(provider)) return makePlatform();
  auto fake = makeFake();
  shared.remember(*fake);
  return fake;
}

}  // namespace tindra
