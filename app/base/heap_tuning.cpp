#include "base/heap_tuning.h"

// <cstdlib> first: __GLIBC__, which the tuning below depends on, is defined by the C library's
// own headers, and is unknown before one of them.
#include <cstdlib>
#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace tindra {

namespace {

// Arenas in all, the main one's among them; each other is a reservation of 64 MB, of which what
// was touched stays.
constexpr int arenas = 2;
// glibc's own starting threshold; fixed, it no longer climbs to the size of each freed buffer.
constexpr int ownMappingFrom = 128 * 1024;

}  // namespace

void tuneHeapForLongRun() {
#if defined(__GLIBC__)
  mallopt(M_ARENA_MAX, arenas);
  mallopt(M_MMAP_THRESHOLD, ownMappingFrom);
#endif
}

}  // namespace tindra
