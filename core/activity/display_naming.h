// DisplayNaming: what a display is called where the user meets it. A monitor goes by its own
// product name, the one its EDID gives ("DELL U2720Q"), not by the connector it hangs on ("DP-1");
// a laptop's panel goes by what it is. Where two displays would share a name (two monitors of one
// model), each has its connector in brackets after it. Where a monitor gives no usable name, the
// connector is the name.
//
// A name the user chose a display by keeps meaning that display when the names around it change:
// its connector (what the names were before), its bare name (chosen while its twin was unplugged)
// and its bracketed name (chosen while both were there) all refer to it.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tindra {

// What the platform says of one attached display.
struct DisplayIdentity {
  std::string connector;    // the kernel's or compositor's name: "HDMI-1", "eDP-1", "HEADLESS-2"
  std::string productName;  // as the monitor reports it; empty when it reports none

  friend bool operator==(const DisplayIdentity&, const DisplayIdentity&) = default;
};

struct DisplayNaming {
  // Laptop panels hang on eDP, LVDS or DSI connectors.
  static bool isBuiltInConnector(std::string_view connector);

  // The names of `displays`, in their order; `builtInName` is what a laptop panel is called in
  // the user's language.
  static std::vector<std::string> names(std::span<const DisplayIdentity> displays,
                                        std::string_view builtInName);

  // Whether `stored`, a name kept by the user's choice of display, means `display`.
  static bool refersTo(std::string_view stored, const DisplayIdentity& display,
                       std::string_view builtInName);
};

}  // namespace tindra
