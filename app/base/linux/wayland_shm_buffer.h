// WaylandShmBuffer: a picture in memory shared with the compositor (wl_shm), premultiplied ARGB
// in the layout of QImage::Format_ARGB32_Premultiplied. The compositor holds it from the commit
// that shows it until it releases it; until then it must not be drawn into.
#pragma once

#include <QSize>
#include <cstddef>
#include <cstdint>
#include <memory>

struct wl_shm;
struct wl_buffer;

namespace tindra {

class WaylandShmBuffer {
 public:
  // None when the memory cannot be had (no memfd, out of memory).
  static std::unique_ptr<WaylandShmBuffer> make(wl_shm* shm, QSize pixels);
  ~WaylandShmBuffer();
  WaylandShmBuffer(const WaylandShmBuffer&) = delete;
  WaylandShmBuffer& operator=(const WaylandShmBuffer&) = delete;

  QSize size() const { return size_; }
  int stride() const { return size_.width() * 4; }
  std::uint8_t* pixels() const { return static_cast<std::uint8_t*>(memory_); }
  wl_buffer* get() const { return buffer_; }
  bool busy() const { return busy_; }
  // The compositor has it from now until it says it is done.
  void lend() { busy_ = true; }

 private:
  WaylandShmBuffer(QSize size, void* memory, std::size_t bytes);

  QSize size_;
  void* memory_;
  std::size_t bytes_;
  wl_buffer* buffer_ = nullptr;
  bool busy_ = false;
};

}  // namespace tindra
