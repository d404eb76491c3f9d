// OutputLayout: the compositor's outputs and where they lie in its global layout, in logical
// pixels as xdg-output gives them, followed as outputs come and go. A virtual pointer's absolute
// position is a fraction of the layout's bounds.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

struct wl_output;
struct wl_registry;
struct zxdg_output_manager_v1;
struct zxdg_output_v1;

namespace tindra {

struct Box {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;

  bool isEmpty() const { return width <= 0 || height <= 0; }
  bool contains(int px, int py) const;
  Box united(const Box& other) const;
};

class OutputLayout {
 public:
  struct Output {
    std::uint32_t global = 0;
    wl_output* output = nullptr;
    zxdg_output_v1* xdgOutput = nullptr;
    Box box;
  };

  OutputLayout() = default;
  OutputLayout(const OutputLayout&) = delete;
  OutputLayout& operator=(const OutputLayout&) = delete;
  ~OutputLayout();

  void setManager(zxdg_output_manager_v1* manager);
  void add(wl_registry* registry, std::uint32_t global, std::uint32_t version);
  void remove(std::uint32_t global);

  // The smallest box holding every output; empty while none has said where it is.
  Box bounds() const;
  // The first output that has said where it is, or null.
  const Output* first() const;

 private:
  void follow(Output& output);

  zxdg_output_manager_v1* manager_ = nullptr;
  std::vector<std::unique_ptr<Output>> outputs_;
};

}  // namespace tindra
