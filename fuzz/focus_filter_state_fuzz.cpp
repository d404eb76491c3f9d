// Arbitrary bytes as the stored Focus filter state and as a name given to the filter: decoding
// never fails (faults read as inactive), a decoded state writes and reads back the same but for
// a space that a cut at forty characters left at the end of its name, and a normalised name is
// one line that normalising again shortens by that space at most.
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
  using tindra::FocusFilterState;
  const std::string name = FocusFilterState::normalizedName(raw);
  require(!tindra::findLineBreak(name));
  require(name.size() <= raw.size() * 3);  // each raw byte becomes at most one U+FFFD
  // A cut may end on a space, which a second pass trims; a third changes nothing.
  const std::string again = FocusFilterState::normalizedName(name);
  require(name.starts_with(again));
  require(FocusFilterState::normalizedName(again) == again);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using tindra::FocusFilterState;
  const std::string_view text(reinterpret_cast<const char*>(data), size);

  const FocusFilterState state = FocusFilterState::decode(text);
  const FocusFilterState again = FocusFilterState::decode(state.encoded());
  require(again.isActive == state.isActive && again.symbol == state.symbol &&
          again.updatedAt == state.updatedAt);
  require(state.name.starts_with(again.name));
  require(FocusFilterState::decode(again.encoded()) == again);

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
