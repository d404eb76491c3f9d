#include "base/linux/wayland_shm_buffer.h"

#include <sys/mman.h>
#include <unistd.h>
#include <wayland-client.h>

namespace tindra {

std::unique_ptr<WaylandShmBuffer> WaylandShmBuffer::make(wl_shm* shm, QSize pixels) {
  if (shm == nullptr || pixels.isEmpty()) return nullptr;
  const std::size_t bytes = std::size_t(pixels.width()) * pixels.height() * 4;
  const int fd = memfd_create("tindra-notch", MFD_CLOEXEC);
  if (fd < 0) return nullptr;
  void* memory = MAP_FAILED;
  if (ftruncate(fd, static_cast<off_t>(bytes)) == 0) {
    memory = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_SHARED, fd, 0);
  }
  if (memory == MAP_FAILED) {
    close(fd);
    return nullptr;
  }
  std::unique_ptr<WaylandShmBuffer> buffer(new WaylandShmBuffer(pixels, memory, bytes));
  // The pool is needed only to cut the buffer from; the buffer keeps the memory alive.
  wl_shm_pool* pool = wl_shm_create_pool(shm, fd, static_cast<std::int32_t>(bytes));
  buffer->buffer_ = wl_shm_pool_create_buffer(pool, 0, pixels.width(), pixels.height(),
                                              buffer->stride(), WL_SHM_FORMAT_ARGB8888);
  wl_shm_pool_destroy(pool);
  close(fd);
  static const wl_buffer_listener released = {
      .release = [](void* data,
                    wl_buffer*) { static_cast<WaylandShmBuffer*>(data)->busy_ = false; },
  };
  wl_buffer_add_listener(buffer->buffer_, &released, buffer.get());
  return buffer;
}

WaylandShmBuffer::WaylandShmBuffer(QSize size, void* memory, std::size_t bytes)
    : size_(size), memory_(memory), bytes_(bytes) {}

WaylandShmBuffer::~WaylandShmBuffer() {
  if (buffer_) wl_buffer_destroy(buffer_);
  munmap(memory_, bytes_);
}

}  // namespace tindra
