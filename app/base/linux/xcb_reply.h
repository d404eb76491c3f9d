// XcbReply: an xcb reply or event, freed with free() as xcb asks.
#pragma once

#include <cstdlib>
#include <memory>

namespace tindra {

struct XcbFree {
  void operator()(void* pointer) const { std::free(pointer); }
};
template <class T>
using XcbReply = std::unique_ptr<T, XcbFree>;

}  // namespace tindra
