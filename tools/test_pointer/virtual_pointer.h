// VirtualPointer: a pointer device of this program's own on the seat, which the compositor then
// treats as a mouse or touchpad: absolute moves across the output layout, buttons, two-finger
// scrolls and wheel detents, each closed by a frame as a real device's events are.
#pragma once

#include <cstdint>

#include "output_layout.h"

struct wl_seat;
struct zwlr_virtual_pointer_manager_v1;
struct zwlr_virtual_pointer_v1;

namespace tindra {

class VirtualPointer {
 public:
  VirtualPointer(zwlr_virtual_pointer_manager_v1* manager, wl_seat* seat);
  VirtualPointer(const VirtualPointer&) = delete;
  VirtualPointer& operator=(const VirtualPointer&) = delete;
  ~VirtualPointer();

  // (x, y) in the compositor's global layout, which must lie inside `layout`.
  void moveTo(int x, int y, const Box& layout);
  // `button` is a Linux input code such as BTN_LEFT.
  void button(std::uint32_t button, bool pressed);
  // One step of fingers on a touchpad, in pixels, positive down and right.
  void scroll(double dx, double dy);
  // The fingers lift: the axes scrolled since the last stop stop.
  void stopScroll();
  // Detents of a wheel, positive down.
  void wheel(int steps);

 private:
  void axis(std::uint32_t axis, double value, std::uint32_t source);
  void stop(std::uint32_t axis);

  zwlr_virtual_pointer_v1* pointer_;
  bool scrolledX_ = false;
  bool scrolledY_ = false;
};

}  // namespace tindra
