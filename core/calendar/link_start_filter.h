// LinkStartFilter: the positions of a UTF-16 text where the meeting-link expression could start
// a match, found with plain character tests so that the (slow) expression is only tried there.
// It never skips a position where the expression would match: it errs towards trying.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tindra {

class LinkStartFilter {
 public:
  explicit LinkStartFilter(std::u16string_view text) : text_(text) {}

  // The first position at or after `from` worth trying, or the text's length when none is.
  std::int32_t next(std::int32_t from) const;

 private:
  bool mightStartScheme(std::size_t start) const;
  // Whether the run of host characters [start, end) may be a bare host address.
  bool mightStartHost(std::size_t start, std::size_t end) const;

  std::u16string_view text_;
};

}  // namespace tindra
