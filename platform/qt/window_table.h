#pragma once

// The table of windows. A handle holds a place in the table and the number of the window that had
// it, so that the handle of a window that is gone is known for what it is.

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "platform/qt/peer.h"

class WindowTable {
 public:
  static WindowTable& Get();

  HWND Add(std::unique_ptr<Peer> peer);
  /// Takes the peer out; its handle is stale from then on.
  std::unique_ptr<Peer> Remove(HWND window);

  Peer* Find(HWND window) const;
  Peer* Find(const QWidget* widget) const;

  std::vector<HWND> OwnedBy(HWND owner) const;
  /// The dialogs that have no parent.
  std::vector<HWND> TopLevel() const;

 private:
  struct Slot {
    std::unique_ptr<Peer> peer;
    const QWidget* widget = nullptr;  ///< Only a key: the toolkit may have deleted it.
    std::uint32_t generation = 1;
  };
  template <class Predicate>
  std::vector<HWND> Select(Predicate predicate) const;

  std::vector<Slot> slots_;
  std::vector<std::uint32_t> free_;
  std::unordered_map<const QWidget*, HWND> byWidget_;
};
