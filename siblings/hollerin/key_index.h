#pragma once

// Finds places by key. Made for long lists that are built at once: one table, no memory of its own
// for each key.

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace HOLLERIN {

/// The keys belong to the user of the index and stay where they are.
class KeyIndex {
 public:
  /// Room for `count` keys, fewer than 2^31.
  explicit KeyIndex(std::size_t count) : keys_(count) {
    std::size_t size = 2;
    while (size < 2 * count) size *= 2;
    slots_.resize(size, kFree);
  }

  /// False, and nothing added, when the key is there already. `place` lies below the count.
  bool Add(std::wstring_view key, std::uint32_t place) {
    std::uint32_t& slot = slots_[SlotOf(key)];
    if (slot != kFree) return false;
    slot = place;
    keys_[place] = key;
    return true;
  }

  std::optional<std::uint32_t> Find(std::wstring_view key) const {
    const std::uint32_t place = slots_[SlotOf(key)];
    return place == kFree ? std::nullopt : std::optional(place);
  }

 private:
  static constexpr std::uint32_t kFree = 0xFFFFFFFFU;

  /// The slot of the key, or the free one where it belongs; half of all slots are free.
  std::size_t SlotOf(std::wstring_view key) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = std::hash<std::wstring_view>()(key) & mask;
    while (slots_[at] != kFree && keys_[slots_[at]] != key) at = (at + 1) & mask;
    return at;
  }

  std::vector<std::wstring_view> keys_;
  std::vector<std::uint32_t> slots_;
};

}  // namespace HOLLERIN
