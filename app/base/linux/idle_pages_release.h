// IdlePagesRelease: once Tindra has drawn its first frame and settled, hands back the pages of
// its program and libraries that only starting needed (QML loading, type registration, the
// first layout, and the neighbours the kernel maps around every page touched), and what the
// heap has freed (start-up's temporaries, later an opened notch's). Only file pages nobody wrote
// to are dropped: the next touch maps them again from the page cache, as after the kernel
// reclaimed them itself, so nothing changes but the resident count. Runs on the main thread,
// once after start, once per long idle period and when asked (release()); where the kernel
// refuses the file pages, the log says so once and only the heap is given back after that.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace tindra {

struct PageRange {
  std::uintptr_t begin = 0;
  std::uintptr_t end = 0;  // one past the last byte
  friend bool operator==(const PageRange&, const PageRange&) = default;
};

// The mappings in `smaps` (the text of /proc/PID/smaps) whose pages can be dropped and read back
// unchanged: backed by a file that still exists (no device, memfd or shared memory), not
// writable, holding no private copy of a page (the relocated read-only data of a library holds
// some, and dropping those would undo its relocations), not locked, and with pages resident.
std::vector<PageRange> droppableFileMappings(std::string_view smaps);

class IdlePagesRelease final : public QObject {
  Q_OBJECT

 public:
  struct Outcome {
    std::size_t mappings = 0;  // released
    bool refused = false;      // smaps unreadable, or the kernel turned the advice down
  };

  IdlePagesRelease(std::chrono::milliseconds settle, std::chrono::milliseconds quiet,
                   QObject* parent = nullptr);

  // Follows the frames of the windows made so far: releases `settle` after the first one, then
  // each time `quiet` has passed without a frame since one was drawn. Call again when windows
  // have been added.
  void watchFrames();

  // Gives back the file pages and the heap now, as after a quiet period: when something large
  // (an opened notch's QML scene) has just been let go.
  void release();
  // Drops the droppable pages of this process now.
  static Outcome releaseNow();
  // Hands the heap's free pages back to the system: after large transient work, and with the
  // file pages.
  static void giveBackFreedHeap();

 signals:
  // After each release, the file pages' outcome.
  void released(const tindra::IdlePagesRelease::Outcome& outcome);

 private:
  void framed();
  void waited();

  std::chrono::milliseconds quiet_;
  QTimer timer_;
  QElapsedTimer sinceFrame_;
  bool released_ = false;  // the start-up release is done
  bool refused_ = false;
};

}  // namespace tindra
