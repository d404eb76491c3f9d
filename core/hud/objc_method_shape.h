// ObjCMethodShape: the type codes a method may have at each position (return, receiver,
// selector, arguments) for calling it safely through a fixed function-pointer type. Checked
// before the first call into the private keyboard-backlight class, whose methods may change.
//
// The expected shapes follow the natural signatures. Integers are 64-bit (Q, q, and L, l which
// are 64-bit on LP64) because the backlight identifier is passed as a 64-bit value; BOOL is "c"
// on Intel and "B" on Apple silicon; floats must be "f", since a double is passed and returned
// differently.
//   copyKeyboardBacklightIDs        -> NSArray* or integer array: {@, ^Q, ^q}  @ :
//   isKeyboardBuiltIn:(uint64)      -> BOOL {B, c}  @ :  {Q, q, L, l}
//   brightnessForKeyboard:(uint64)  -> float {f}    @ :  {Q, q, L, l}
//   setBrightness:(float) forKeyboard:(uint64) -> BOOL {B, c}  @ :  {f}  {Q, q, L, l}
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tindra {

struct ObjCMethodShape {
  using CodeSet = std::set<std::string, std::less<>>;

  // One set of acceptable codes per position.
  std::vector<CodeSet> positions;

  // True when the encoding parses to as many positions, each code in its position's set.
  bool matches(std::string_view encoding) const;

  static ObjCMethodShape copyKeyboardBacklightIDs();
  static ObjCMethodShape isKeyboardBuiltIn();
  static ObjCMethodShape brightnessForKeyboard();
  static ObjCMethodShape setBrightnessForKeyboard();

  friend bool operator==(const ObjCMethodShape&, const ObjCMethodShape&) = default;
};

}  // namespace tindra
