#include "base/json_value.h"

#include <array>
#include <cstdint>
#include <iterator>
#include <numeric>
#include <span>

namespace tindra {

JSONObject::JSONObject(std::initializer_list<Member> members) {
  Members arrived(members);
  adopt(arrived);
}

void JSONObject::adopt(Members& arrived) {
  const JSONNameOrder before;
  const std::size_t count = arrived.size();
  members_.clear();
  members_.reserve(count);
  // Senders mostly write names in order; then the members simply move over.
  const bool ordered =
      std::adjacent_find(arrived.begin(), arrived.end(), [&](const Member& a, const Member& b) {
        return !before(a.first, b.first);
      }) == arrived.end();
  if (ordered) {
    std::move(arrived.begin(), arrived.end(), std::back_inserter(members_));
    return;
  }
  // Sorting positions rather than members moves each member once. Stable, so of a repeated
  // name the one that arrived last comes last.
  constexpr std::size_t smallObject = 32;
  std::array<std::uint32_t, smallObject> onStack;
  std::vector<std::uint32_t> onHeap;
  if (count > smallObject) onHeap.resize(count);
  const std::span<std::uint32_t> order =
      count > smallObject ? std::span(onHeap) : std::span(onStack.data(), count);
  std::iota(order.begin(), order.end(), 0u);
  const auto byName = [&](std::uint32_t a, std::uint32_t b) {
    return before(arrived[a].first, arrived[b].first);
  };
  if (count <= smallObject) {
    for (std::size_t i = 1; i < count; ++i) {
      const std::uint32_t moving = order[i];
      std::size_t hole = i;
      for (; hole > 0 && byName(moving, order[hole - 1]); --hole) order[hole] = order[hole - 1];
      order[hole] = moving;
    }
  } else {
    std::stable_sort(order.begin(), order.end(), byName);
  }
  for (std::size_t k = 0; k < count; ++k) {
    const bool repeatedLater =
        k + 1 < count && arrived[order[k]].first == arrived[order[k + 1]].first;
    if (!repeatedLater) members_.push_back(std::move(arrived[order[k]]));
  }
}

const JSONValue* JSONValue::find(std::string_view name) const {
  const Object* object = asObject();
  if (object == nullptr) return nullptr;
  auto it = object->find(name);
  return it == object->end() ? nullptr : &it->second;
}

}  // namespace tindra
