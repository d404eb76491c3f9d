// The text of an iCalendar document as UTF-8, whatever it arrived as. The format says UTF-8, but
// exports from older programs come as UTF-16 with a byte-order mark or as Windows-1252, and a
// title with mangled accents is better than a calendar that does not load.
#pragma once

#include <string>
#include <string_view>

namespace tindra {

// `bytes` as UTF-8 without a byte-order mark: UTF-8 as it is, UTF-16 by its mark, and anything
// that is not well-formed UTF-8 read as Windows-1252.
std::string iCalendarUTF8(std::string_view bytes);

}  // namespace tindra
