// NotchPresentation: whether the notch shows only its compact, notch-sized content or the
// expanded panel.
#pragma once

namespace tindra {

enum class NotchPresentation { compact, expanded };

}  // namespace tindra
