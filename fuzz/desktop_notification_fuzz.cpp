// Arbitrary bytes as the parts of a desktop notification and as the user's list of call and
// message applications: the text drawn is always well-formed UTF-8 without markup tags'
// brackets left unbalanced by us, never longer than its limit, and classifying never fails.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/utf8.h"
#include "focus/desktop_notification.h"
#include "focus/notification_text.h"

namespace {

void require(bool condition) {
  if (!condition) __builtin_trap();
}

bool wellFormed(std::string_view text) {
  for (std::size_t i = 0; i < text.size();) {
    if (static_cast<unsigned char>(text[i]) < 0x80) {
      ++i;
      continue;
    }
    const std::size_t length =
        tindra::utf8SequenceLength(text.data() + i, text.data() + text.size());
    if (length == 0) return false;
    i += length;
  }
  return true;
}

std::size_t codePoints(std::string_view text) {
  std::size_t count = 0;
  for (const char c : text) count += (static_cast<unsigned char>(c) & 0xC0) != 0x80;
  return count;
}

void checkText(const std::string& text, std::size_t limit) {
  require(wellFormed(text));
  require(codePoints(text) <= limit);
  for (const char c : text) require(c == '\n' || static_cast<unsigned char>(c) >= 0x20);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tindra;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  checkText(NotificationText::plain(bytes, 40), 40);
  checkText(NotificationText::fromMarkup(bytes, 40), 40);
  checkText(NotificationText::fromMarkup(bytes), NotificationText::maxLength);

  // The first bytes pick the category and whose notification it is; the rest is the text.
  const std::string_view categories[] = {"", "call.incoming", "call.unanswered", "im.received",
                                         "call.ended"};
  const std::size_t pick = size > 0 ? data[0] % std::size(categories) : 0;
  const std::size_t half = size / 2;
  const DesktopNotification notification{.appName = std::string(bytes.substr(0, half)),
                                         .desktopEntry = std::string(bytes.substr(half)),
                                         .summary = std::string(bytes.substr(half)),
                                         .body = std::string(bytes),
                                         .category = std::string(categories[pick])};
  const BannerApps apps = BannerApps::decode(bytes);
  const NotificationBanner banner = bannerOf(notification, apps);
  checkText(banner.summary, 1000);
  require(banner.summary.find(", ") == banner.app().size());
  if (const auto event = classifyNotification(notification, apps, true, true)) {
    if (const auto* notice = event->asNotice()) require(!notice->title.empty());
  }
  return 0;
}
