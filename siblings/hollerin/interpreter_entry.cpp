#include "hollerin/interpreter_entry.h"

#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace HOLLERIN {
namespace {

constexpr const wchar_t* kNoKey = L"interpreter";

/// The entries whose keys are missing, or are those of entries before them.
std::vector<InterpreterEntry*> WithoutOwnKey(std::vector<InterpreterEntry>& entries) {
  std::unordered_set<std::wstring_view> keys;
  keys.reserve(entries.size());
  std::vector<InterpreterEntry*> without;
  for (InterpreterEntry& entry : entries) {
    if (entry.key.empty() || !keys.insert(entry.key).second) without.push_back(&entry);
  }
  return without;
}

template <class To, class From>
BasicInterpreter<To> Convert(const BasicInterpreter<From>& from) {
  return {To(from.name), To(from.key), To(from.extensions), To(from.info), To(from.type),
          from.enabled,  from.optionA, from.document,       from.optionC};
}

template <class To, class From>
std::vector<BasicInterpreter<To>> ConvertAll(const std::vector<BasicInterpreter<From>>& all) {
  std::vector<BasicInterpreter<To>> result;
  result.reserve(all.size());
  for (const auto& one : all) result.push_back(Convert<To>(one));
  return result;
}

}  // namespace

std::vector<InterpreterEntry> ToEntries(const std::vector<InterpreterView>& views) {
  return ConvertAll<std::wstring>(views);
}

std::vector<InterpreterView> ToViews(const std::vector<InterpreterEntry>& entries) {
  return ConvertAll<std::wstring_view>(entries);
}

std::vector<std::wstring> MakeKeysUnique(std::vector<InterpreterEntry>& entries) {
  const std::vector<InterpreterEntry*> without = WithoutOwnKey(entries);
  if (without.empty()) return {};
  // Keys that entries own count first, so that a new key never takes one away.
  std::unordered_set<std::wstring> taken;
  for (const InterpreterEntry& entry : entries) taken.insert(entry.key);
  std::unordered_map<std::wstring, int> next;
  std::vector<std::wstring> changes;
  for (InterpreterEntry* const entry : without) {
    const std::wstring stem = entry->key.empty() ? kNoKey : entry->key;
    int& number = next.try_emplace(stem, 2).first->second;
    std::wstring key;
    do {
      key = stem + L"~" + std::to_wstring(number++);
    } while (!taken.insert(key).second);
    changes.push_back(L"The interpreter \"" + entry->name + L"\" has no key of its own (\"" +
                      entry->key + L"\") and is called \"" + key + L"\" now.");
    entry->key = std::move(key);
  }
  return changes;
}

}  // namespace HOLLERIN
