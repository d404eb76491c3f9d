#include "virtual_pointer.h"

#include <wayland-client.h>

#include <ctime>

#include "wayland/wlr-virtual-pointer-unstable-v1-client.h"

namespace tindra {

namespace {

// Input events carry milliseconds of the monotonic clock, as the kernel's do.
std::uint32_t now() {
  timespec time{};
  clock_gettime(CLOCK_MONOTONIC, &time);
  return static_cast<std::uint32_t>(time.tv_sec * 1000 + time.tv_nsec / 1000000);
}

// A detent of a wheel scrolls this far, as libinput reports a common mouse's.
constexpr double wheelDegrees = 15;

}  // namespace

VirtualPointer::VirtualPointer(zwlr_virtual_pointer_manager_v1* manager, wl_seat* seat)
    : pointer_(zwlr_virtual_pointer_manager_v1_create_virtual_pointer(manager, seat)) {}

VirtualPointer::~VirtualPointer() {
  zwlr_virtual_pointer_v1_destroy(pointer_);
}

void VirtualPointer::moveTo(int x, int y, const Box& layout) {
  zwlr_virtual_pointer_v1_motion_absolute(pointer_, now(), static_cast<std::uint32_t>(x - layout.x),
                                          static_cast<std::uint32_t>(y - layout.y),
                                          static_cast<std::uint32_t>(layout.width),
                                          static_cast<std::uint32_t>(layout.height));
  zwlr_virtual_pointer_v1_frame(pointer_);
}

void VirtualPointer::button(std::uint32_t button, bool pressed) {
  zwlr_virtual_pointer_v1_button(
      pointer_, now(), button,
      pressed ? WL_POINTER_BUTTON_STATE_PRESSED : WL_POINTER_BUTTON_STATE_RELEASED);
  zwlr_virtual_pointer_v1_frame(pointer_);
}

void VirtualPointer::scroll(double dx, double dy) {
  if (dx != 0) axis(WL_POINTER_AXIS_HORIZONTAL_SCROLL, dx, WL_POINTER_AXIS_SOURCE_FINGER);
  if (dy != 0) axis(WL_POINTER_AXIS_VERTICAL_SCROLL, dy, WL_POINTER_AXIS_SOURCE_FINGER);
  scrolledX_ |= dx != 0;
  scrolledY_ |= dy != 0;
  zwlr_virtual_pointer_v1_frame(pointer_);
}

void VirtualPointer::stopScroll() {
  if (scrolledX_) stop(WL_POINTER_AXIS_HORIZONTAL_SCROLL);
  if (scrolledY_ || !scrolledX_) stop(WL_POINTER_AXIS_VERTICAL_SCROLL);
  scrolledX_ = scrolledY_ = false;
  zwlr_virtual_pointer_v1_frame(pointer_);
}

void VirtualPointer::wheel(int steps) {
  zwlr_virtual_pointer_v1_axis_discrete(pointer_, now(), WL_POINTER_AXIS_VERTICAL_SCROLL,
                                        wl_fixed_from_double(steps * wheelDegrees), steps);
  zwlr_virtual_pointer_v1_axis_source(pointer_, WL_POINTER_AXIS_SOURCE_WHEEL);
  zwlr_virtual_pointer_v1_frame(pointer_);
}

// wlroots keeps a source for each axis and sets the one of the axis named last, so the source
// follows its axis rather than leading the frame. Sent first, it would mark only the axis of the
// frame before, and sway 1.7 aborts on a frame whose axes differ in source.
void VirtualPointer::axis(std::uint32_t axis, double value, std::uint32_t source) {
  zwlr_virtual_pointer_v1_axis(pointer_, now(), axis, wl_fixed_from_double(value));
  zwlr_virtual_pointer_v1_axis_source(pointer_, source);
}

void VirtualPointer::stop(std::uint32_t axis) {
  zwlr_virtual_pointer_v1_axis_stop(pointer_, now(), axis);
  zwlr_virtual_pointer_v1_axis_source(pointer_, WL_POINTER_AXIS_SOURCE_FINGER);
}

}  // namespace tindra
