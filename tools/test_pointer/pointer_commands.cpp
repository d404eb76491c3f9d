#include "pointer_commands.h"

#include <linux/input-event-codes.h>

#include <charconv>
#include <optional>

#include "virtual_pointer.h"
#include "wayland_client.h"

namespace tindra {

namespace {

std::vector<std::string_view> split(std::string_view line) {
  std::vector<std::string_view> words;
  while (true) {
    const std::size_t start = line.find_first_not_of(" \t\r");
    if (start == std::string_view::npos) return words;
    line.remove_prefix(start);
    const std::size_t end = std::min(line.find_first_of(" \t\r"), line.size());
    words.push_back(line.substr(0, end));
    line.remove_prefix(end);
  }
}

template <typename Number>
std::optional<Number> number(std::string_view word) {
  Number value{};
  const auto [end, failure] = std::from_chars(word.data(), word.data() + word.size(), value);
  if (failure != std::errc() || end != word.data() + word.size()) return std::nullopt;
  return value;
}

std::string error(std::string_view why) {
  return "error: " + std::string(why);
}

std::string describe(const Box& box) {
  return std::to_string(box.width) + "x" + std::to_string(box.height) + "+" +
         std::to_string(box.x) + "+" + std::to_string(box.y);
}

}  // namespace

PointerCommands::PointerCommands(WaylandClient& wayland, VirtualPointer& pointer,
                                 FileDrag::Report report)
    : wayland_(wayland), pointer_(pointer), drag_(wayland, std::move(report)) {}

std::string PointerCommands::run(std::string_view line) {
  const Words words = split(line);
  if (words.empty()) return error("empty command");
  return dispatch(words);
}

std::string PointerCommands::dispatch(const Words& words) {
  const std::string_view verb = words.front();
  const bool bare = words.size() == 1;
  if (verb == "move") return move(words);
  if (verb == "press" && bare) return button(BTN_LEFT, true);
  if (verb == "release" && bare) return button(BTN_LEFT, false);
  if (verb == "right-press" && bare) return button(BTN_RIGHT, true);
  if (verb == "right-release" && bare) return button(BTN_RIGHT, false);
  if (verb == "scroll") return scroll(words);
  if (verb == "scroll-stop" && bare) {
    pointer_.stopScroll();
    return settle();
  }
  if (verb == "wheel") return wheel(words);
  if (verb == "drag-files") return dragFiles(words);
  if (verb == "quit" && bare) {
    quitting_ = true;
    return settle();
  }
  return error("unknown command or wrong arguments: " + std::string(verb));
}

std::string PointerCommands::move(const Words& words) {
  const auto x = words.size() == 3 ? number<int>(words[1]) : std::nullopt;
  const auto y = words.size() == 3 ? number<int>(words[2]) : std::nullopt;
  if (!x || !y) return error("move takes X Y, whole pixels");
  const Box layout = wayland_.outputs().bounds();
  if (!layout.contains(*x, *y)) {
    return error("the point lies outside the outputs' layout " + describe(layout));
  }
  pointer_.moveTo(*x, *y, layout);
  return settle();
}

std::string PointerCommands::button(std::uint32_t code, bool pressed) {
  pointer_.button(code, pressed);
  return settle();
}

std::string PointerCommands::scroll(const Words& words) {
  const auto dx = words.size() == 3 ? number<double>(words[1]) : std::nullopt;
  const auto dy = words.size() == 3 ? number<double>(words[2]) : std::nullopt;
  if (!dx || !dy) return error("scroll takes DX DY, pixels");
  pointer_.scroll(*dx, *dy);
  return settle();
}

std::string PointerCommands::wheel(const Words& words) {
  const auto steps = words.size() == 2 ? number<int>(words[1]) : std::nullopt;
  if (!steps || *steps == 0) return error("wheel takes N, detents other than 0");
  pointer_.wheel(*steps);
  return settle();
}

std::string PointerCommands::dragFiles(const Words& words) {
  if (words.size() < 2) return error("drag-files takes one or more URIs");
  if (drag_.isActive()) return error("a drag is under way already");
  const std::string failure =
      drag_.start(std::vector<std::string>(words.begin() + 1, words.end()), pointer_);
  return failure.empty() ? settle() : error(failure);
}

// The answer waits until the compositor has handled the command.
std::string PointerCommands::settle() {
  if (!wayland_.roundtrip()) return error("the compositor closed the connection");
  return "ok";
}

}  // namespace tindra
