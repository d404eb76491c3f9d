// Turns a minute figure already rounded as a double into an integer. A figure that is not finite
// or beyond the signed 64-bit range comes from a corrupt date: a programming fault that stops the
// program rather than showing a made-up number.
#pragma once

#include <cstdint>

namespace tindra {

std::int64_t wholeMinutes(double rounded);

}  // namespace tindra
