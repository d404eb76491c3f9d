#include "output_layout.h"

#include <wayland-client.h>

#include <algorithm>

#include "wayland/xdg-output-unstable-v1-client.h"

namespace tindra {

namespace {

OutputLayout::Output& output(void* data) {
  return *static_cast<OutputLayout::Output*>(data);
}

const zxdg_output_v1_listener xdgOutputListener = {
    .logical_position =
        [](void* data, zxdg_output_v1*, std::int32_t x, std::int32_t y) {
          output(data).box.x = x;
          output(data).box.y = y;
        },
    .logical_size =
        [](void* data, zxdg_output_v1*, std::int32_t width, std::int32_t height) {
          output(data).box.width = width;
          output(data).box.height = height;
        },
    .done = [](void*, zxdg_output_v1*) {},
    .name = [](void*, zxdg_output_v1*, const char*) {},
    .description = [](void*, zxdg_output_v1*, const char*) {},
};

}  // namespace

bool Box::contains(int px, int py) const {
  return px >= x && py >= y && px < x + width && py < y + height;
}

Box Box::united(const Box& other) const {
  if (isEmpty()) return other;
  if (other.isEmpty()) return *this;
  const int left = std::min(x, other.x);
  const int top = std::min(y, other.y);
  const int right = std::max(x + width, other.x + other.width);
  const int bottom = std::max(y + height, other.y + other.height);
  return {left, top, right - left, bottom - top};
}

OutputLayout::~OutputLayout() {
  for (const auto& known : outputs_) {
    if (known->xdgOutput) zxdg_output_v1_destroy(known->xdgOutput);
    wl_output_destroy(known->output);
  }
  if (manager_) zxdg_output_manager_v1_destroy(manager_);
}

void OutputLayout::setManager(zxdg_output_manager_v1* manager) {
  manager_ = manager;
  for (const auto& known : outputs_) follow(*known);
}

void OutputLayout::add(wl_registry* registry, std::uint32_t global, std::uint32_t version) {
  auto added = std::make_unique<Output>();
  added->global = global;
  added->output = static_cast<wl_output*>(
      wl_registry_bind(registry, global, &wl_output_interface, std::min(version, 3u)));
  follow(*added);
  outputs_.push_back(std::move(added));
}

void OutputLayout::remove(std::uint32_t global) {
  const auto gone = std::find_if(outputs_.begin(), outputs_.end(),
                                 [global](const auto& known) { return known->global == global; });
  if (gone == outputs_.end()) return;
  if ((*gone)->xdgOutput) zxdg_output_v1_destroy((*gone)->xdgOutput);
  wl_output_destroy((*gone)->output);
  outputs_.erase(gone);
}

Box OutputLayout::bounds() const {
  Box all;
  for (const auto& known : outputs_) all = all.united(known->box);
  return all;
}

const OutputLayout::Output* OutputLayout::first() const {
  for (const auto& known : outputs_) {
    if (!known->box.isEmpty()) return known.get();
  }
  return nullptr;
}

void OutputLayout::follow(Output& known) {
  if (manager_ == nullptr || known.xdgOutput != nullptr) return;
  known.xdgOutput = zxdg_output_manager_v1_get_xdg_output(manager_, known.output);
  zxdg_output_v1_add_listener(known.xdgOutput, &xdgOutputListener, &known);
}

}  // namespace tindra
