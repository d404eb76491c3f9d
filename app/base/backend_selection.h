// Which backend a provider gets, decided in one place: the fake backend when the TINDRA_FAKE
// environment variable names the provider ("battery,media", or "all"), else the platform's real
// backend, which itself falls back to a do-nothing backend when its service is missing. Fakes
// show invented data, so they are only ever on when asked for.
#pragma once

#include <QString>

namespace tindra {

// True when TINDRA_FAKE asks for `provider`'s fake backend.
bool fakeBackendRequested(const QString& provider);

}  // namespace tindra
