// Heap tuning for a program that stays resident from login to shutdown. glibc's malloc gives each
// thread that allocates an arena of its own and keeps for good whatever a thread once touched
// there; Tindra's threads (the bus, the calendar reader, cover decoding, Qt's own) are idle nearly
// always, so a few arenas shared among them serve as well. Big transient buffers (a decoded
// cover, a calendar's text) go to mappings of their own, which are handed back the moment they
// are freed, instead of raising the threshold and settling in an arena.
#pragma once

namespace tindra {

// Before any thread starts: the first thing main does. What the heap frees is given back with
// the idle file pages (IdlePagesRelease).
void tuneHeapForLongRun();

}  // namespace tindra
