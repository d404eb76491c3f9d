// PointerCommands: tindra-test-pointer's commands, one line each, run against the compositor;
// each answer comes once the compositor has handled what the command sent.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "file_drag.h"

namespace tindra {

class WaylandClient;
class VirtualPointer;

class PointerCommands {
 public:
  // `report` gets what a drag's data source hears, whenever it hears it.
  PointerCommands(WaylandClient& wayland, VirtualPointer& pointer, FileDrag::Report report);

  // "ok", or "error: " and why.
  std::string run(std::string_view line);
  bool quitting() const { return quitting_; }

 private:
  using Words = std::vector<std::string_view>;

  std::string dispatch(const Words& words);
  std::string move(const Words& words);
  std::string button(std::uint32_t code, bool pressed);
  std::string scroll(const Words& words);
  std::string wheel(const Words& words);
  std::string dragFiles(const Words& words);
  std::string settle();

  WaylandClient& wayland_;
  VirtualPointer& pointer_;
  FileDrag drag_;
  bool quitting_ = false;
};

}  // namespace tindra
