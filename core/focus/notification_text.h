// NotificationText: the text of a desktop notification made fit to draw. Programs send anything:
// body markup (<b>, <i>, <u>, <a href>, <img>, entities), malformed UTF-8 from a careless
// client, control characters, bodies of megabytes. What comes out is plain, well-formed,
// trimmed and short; nothing here fails.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tindra {

struct NotificationText {
  // Code points kept of a summary or a body; the notch shows two lines at most.
  static constexpr std::size_t maxLength = 300;

  // `text` as it may be drawn: malformed UTF-8 becomes U+FFFD, CR LF and CR become line breaks,
  // tabs and other control characters spaces, white space is trimmed at both ends and at most
  // `maxLength` code points are kept, the last of them "…" when something was cut.
  static std::string plain(std::string_view text,
                           std::size_t maxLength = NotificationText::maxLength);
  // `markup` without its tags (<br> becomes a line break) and with its entities decoded (&amp;,
  // &lt;, &gt;, &quot;, &apos;, &#N;, &#xN;), then as `plain`. A "<" that opens no tag and an
  // "&" that starts no entity are text.
  static std::string fromMarkup(std::string_view markup,
                                std::size_t maxLength = NotificationText::maxLength);
};

}  // namespace tindra
