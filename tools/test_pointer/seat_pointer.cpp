#include "seat_pointer.h"

#include <linux/input-event-codes.h>
#include <wayland-client.h>

namespace tindra {

namespace {

SeatPointer& self(void* data) {
  return *static_cast<SeatPointer*>(data);
}

}  // namespace

SeatPointer::SeatPointer(wl_seat* seat) : seat_(seat) {
  static const wl_seat_listener seatListener = {
      .capabilities = [](void* data, wl_seat*,
                         std::uint32_t capabilities) { self(data).capabilities(capabilities); },
      .name = [](void*, wl_seat*, const char*) {},
  };
  wl_seat_add_listener(seat_, &seatListener, this);
}

SeatPointer::~SeatPointer() {
  if (pointer_) wl_pointer_destroy(pointer_);
  wl_seat_destroy(seat_);
}

void SeatPointer::capabilities(std::uint32_t capabilities) {
  // Only enter, leave and buttons matter here; the rest of a pointer's events are not listened to.
  static const wl_pointer_listener pointerListener = {
      .enter = [](void* data, wl_pointer*, std::uint32_t, wl_surface* surface, wl_fixed_t,
                  wl_fixed_t) { self(data).enter(surface); },
      .leave = [](void* data, wl_pointer*, std::uint32_t, wl_surface*) { self(data).leave(); },
      .motion = [](void*, wl_pointer*, std::uint32_t, wl_fixed_t, wl_fixed_t) {},
      .button =
          [](void* data, wl_pointer*, std::uint32_t serial, std::uint32_t, std::uint32_t button,
             std::uint32_t state) {
            self(data).button(serial, button, state == WL_POINTER_BUTTON_STATE_PRESSED);
          },
      .axis = [](void*, wl_pointer*, std::uint32_t, std::uint32_t, wl_fixed_t) {},
      .frame = [](void*, wl_pointer*) {},
      .axis_source = [](void*, wl_pointer*, std::uint32_t) {},
      .axis_stop = [](void*, wl_pointer*, std::uint32_t, std::uint32_t) {},
      .axis_discrete = [](void*, wl_pointer*, std::uint32_t, std::int32_t) {},
      .axis_value120 = nullptr,
  };
  const bool hasPointer = capabilities & WL_SEAT_CAPABILITY_POINTER;
  if (hasPointer && pointer_ == nullptr) {
    pointer_ = wl_seat_get_pointer(seat_);
    wl_pointer_add_listener(pointer_, &pointerListener, this);
  } else if (!hasPointer && pointer_ != nullptr) {
    wl_pointer_destroy(pointer_);
    pointer_ = nullptr;
    leave();
  }
}

void SeatPointer::enter(wl_surface* surface) {
  focus_ = surface;
}

void SeatPointer::leave() {
  focus_ = nullptr;
  pressSerial_.reset();
}

void SeatPointer::button(std::uint32_t serial, std::uint32_t button, bool pressed) {
  if (button != BTN_LEFT) return;
  if (pressed) {
    pressSerial_ = serial;
  } else {
    pressSerial_.reset();
  }
}

}  // namespace tindra
