// SeatPointer: the seat's pointer as this program's own surfaces feel it: which of them it is
// over, and the serial of the left-button press held there, which a drag started from the press
// must name. The seat has a pointer only once a pointer device (the virtual one) joined it.
#pragma once

#include <cstdint>
#include <optional>

struct wl_seat;
struct wl_pointer;
struct wl_surface;

namespace tindra {

class SeatPointer {
 public:
  explicit SeatPointer(wl_seat* seat);
  SeatPointer(const SeatPointer&) = delete;
  SeatPointer& operator=(const SeatPointer&) = delete;
  ~SeatPointer();

  wl_seat* seat() const { return seat_; }
  bool hasPointer() const { return pointer_ != nullptr; }
  // The surface of this program's under the pointer, or null.
  wl_surface* focus() const { return focus_; }
  std::optional<std::uint32_t> pressSerial() const { return pressSerial_; }

 private:
  void capabilities(std::uint32_t capabilities);
  void enter(wl_surface* surface);
  void leave();
  void button(std::uint32_t serial, std::uint32_t button, bool pressed);

  wl_seat* seat_;
  wl_pointer* pointer_ = nullptr;
  wl_surface* focus_ = nullptr;
  std::optional<std::uint32_t> pressSerial_;
};

}  // namespace tindra
