#include "focus/focus_status_source.h"

#include "base/backend_selection.h"
#include "focus/fake_focus_status_source.h"
#include "focus/focus_provider.h"

namespace tindra {

std::shared_ptr<FocusStatusSource> FocusStatusSource::shared(SharedBackends& shared) {
  return shared.get<FocusStatusSource>([&shared] {
    return chooseBackend(
        FocusProvider::id, shared, [] { return std::make_unique<FakeFocusStatusSource>(); },
        [&] { return forPlatform(shared); });
  });
}

}  // namespace tindra
