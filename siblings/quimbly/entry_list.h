#pragma once

// The entries of one history, as they may be kept.

#include <unordered_set>
#include <vector>

#include "platform/text.h"

/// Takes entries one after the other, the newest first, and keeps those that a history can hold.
class EntryList {
 public:
  explicit EntryList(std::size_t maximum) : maximum_(maximum) {}

  bool Full() const { return entries_.size() >= maximum_; }
  void Add(std::wstring entry);
  std::vector<CString> Take() { return std::move(entries_); }

 private:
  std::size_t maximum_;
  std::vector<CString> entries_;
  std::unordered_set<std::wstring> known_;
};
