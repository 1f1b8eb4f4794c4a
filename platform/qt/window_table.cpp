#include "platform/qt/window_table.h"

namespace {

constexpr unsigned kIndexBits = 24;
constexpr std::uintptr_t kIndexMask = (std::uintptr_t{1} << kIndexBits) - 1;

// Places are counted from 1, so that no handle is null.
HWND MakeHandle(std::size_t index, std::uint32_t generation) {
  return reinterpret_cast<HWND>(static_cast<std::uintptr_t>(generation) << kIndexBits |
                                (index + 1));
}

std::size_t IndexOf(HWND window) {
  return (reinterpret_cast<std::uintptr_t>(window) & kIndexMask) - 1;
}

std::uint32_t GenerationOf(HWND window) {
  return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(window) >> kIndexBits);
}

}  // namespace

WindowTable& WindowTable::Get() {
  // Never destroyed: objects with static life may still ask for their windows at the end.
  static auto* table = new WindowTable;
  return *table;
}

HWND WindowTable::Add(std::unique_ptr<Peer> peer) {
  if (free_.empty()) {
    free_.push_back(static_cast<std::uint32_t>(slots_.size()));
    slots_.emplace_back();
  }
  const std::uint32_t index = free_.back();
  free_.pop_back();
  Slot& slot = slots_[index];
  slot.peer = std::move(peer);
  slot.peer->handle = MakeHandle(index, slot.generation);
  slot.widget = slot.peer->widget;
  byWidget_[slot.widget] = slot.peer->handle;
  return slot.peer->handle;
}

std::unique_ptr<Peer> WindowTable::Remove(HWND window) {
  if (Find(window) == nullptr) return nullptr;
  const std::size_t index = IndexOf(window);
  Slot& slot = slots_[index];
  ++slot.generation;
  free_.push_back(static_cast<std::uint32_t>(index));
  byWidget_.erase(slot.widget);
  return std::move(slot.peer);
}

Peer* WindowTable::Find(HWND window) const {
  const std::size_t index = IndexOf(window);
  if (window == nullptr || index >= slots_.size()) return nullptr;
  const Slot& slot = slots_[index];
  return slot.generation == GenerationOf(window) ? slot.peer.get() : nullptr;
}

Peer* WindowTable::Find(const QWidget* widget) const {
  const auto found = byWidget_.find(widget);
  return found != byWidget_.end() ? Find(found->second) : nullptr;
}

template <class Predicate>
std::vector<HWND> WindowTable::Select(Predicate predicate) const {
  std::vector<HWND> windows;
  for (const Slot& slot : slots_)
    if (slot.peer != nullptr && predicate(*slot.peer)) windows.push_back(slot.peer->handle);
  return windows;
}

std::vector<HWND> WindowTable::OwnedBy(HWND owner) const {
  return Select([owner](const Peer& peer) { return peer.owner == owner; });
}

std::vector<HWND> WindowTable::TopLevel() const {
  return Select([](const Peer& peer) { return peer.parent == nullptr; });
}

Peer* FindPeer(HWND window) { return WindowTable::Get().Find(window); }
Peer* FindPeer(const QWidget* widget) { return WindowTable::Get().Find(widget); }

Peer* FindPeerAround(const QWidget* widget) {
  for (; widget != nullptr; widget = widget->parentWidget())
    if (Peer* peer = FindPeer(widget)) return peer;
  return nullptr;
}

BOOL IsWindow(HWND window) { return FindPeer(window) != nullptr; }
