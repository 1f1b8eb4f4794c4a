#include "quimbly/entry_list.h"

void EntryList::Add(std::wstring entry) {
  if (Full()) return;
  std::erase(entry, L'\r');
  if (entry.empty() || !known_.insert(entry).second) return;
  entries_.emplace_back(std::move(entry));
}
