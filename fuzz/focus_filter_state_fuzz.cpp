// Arbitrary bytes as the stored Focus filter state and as a name given to the filter: decoding
// never fails (faults read as inactive), a decoded state writes and reads back equal, and a
// normalised name is one trimmed line that normalising again leaves alone.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/line_break.h"
#include "focus/banner_classifier.h"
#include "focus/focus_filter_state.h"

namespace {

void require(bool condition) {
  if (!condition) __builtin_trap();
}

void checkName(std::string_view raw) {
  const std::string name = tindra::FocusFilterState::normalizedName(raw);
  require(!tindra::findLineBreak(name));
  require(tindra::FocusFilterState::normalizedName(name) == name);
  require(name.size() <= raw.size() * 3);  // each raw byte becomes at most one U+FFFD
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using tindra::FocusFilterState;
  const std::string_view text(reinterpret_cast<const char*>(data), size);

  const FocusFilterState state = FocusFilterState::decode(text);
  require(FocusFilterState::decode(state.encoded()) == state);
  require(FocusFilterState::normalizedName(state.name) == state.name);

  checkName(text);

  // The same bytes as a banner summary and action, as a notification provider would pass them.
  const tindra::NotificationBanner banner{.summary = std::string(text),
                                          .actions = {std::string(text)}};
  if (const auto event =
          tindra::BannerClassifier::classify(banner, "Messages", "FaceTime", true, true)) {
    require(event->asNotice() && !event->asNotice()->title.empty());
  }
  for (const tindra::BannerButton& button : banner.buttons()) {
    require(!button.name.empty() && !tindra::findLineBreak(button.name));
  }
  return 0;
}
