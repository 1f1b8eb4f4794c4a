#include "hollerin/filter_interpreters.h"

#include <unordered_map>
#include <utility>

namespace HOLLERIN {
namespace {

constexpr const wchar_t* kKeyStart = L"ifilter:";

std::wstring InfoText(const DocumentFilter& filter) {
  return L"Text extracted by " + filter.location +
         (filter.arguments.empty() ? L"" : L" " + filter.arguments);
}

InterpreterEntry FilterInterpreter(const DocumentFilter& filter) {
  InterpreterEntry entry;
  entry.name = filter.name;
  entry.key = kKeyStart + filter.name;
  entry.extensions = filter.extension;
  entry.info = InfoText(filter);
  entry.type = L"ifilter";
  entry.enabled = true;
  entry.document = true;
  return entry;
}

/// What the user has chosen for `from`, over to the entry of the same filter.
void KeepChoices(const InterpreterEntry& from, InterpreterEntry& to) {
  to.enabled = from.enabled;
  to.optionA = from.optionA;
  to.document = from.document;
  to.optionC = from.optionC;
}

}  // namespace

std::vector<InterpreterEntry> FilterInterpreters(const std::vector<DocumentFilter>& filters) {
  std::vector<InterpreterEntry> entries;
  std::unordered_map<std::wstring, std::size_t> places;
  for (const DocumentFilter& filter : filters) {
    const auto [place, isNew] = places.try_emplace(filter.name, entries.size());
    if (isNew) {
      entries.push_back(FilterInterpreter(filter));
    } else {
      entries[place->second].extensions += L"," + filter.extension;
    }
  }
  return entries;
}

bool ResyncFilterInterpreters(std::vector<InterpreterEntry>& entries,
                              const std::vector<DocumentFilter>& filters) {
  std::vector<InterpreterEntry> found = FilterInterpreters(filters);
  std::unordered_map<std::wstring, InterpreterEntry*> missing;
  for (InterpreterEntry& entry : found) missing[entry.key] = &entry;

  std::vector<InterpreterEntry> result;
  for (const InterpreterEntry& entry : entries) {
    if (!entry.key.starts_with(kKeyStart)) {
      result.push_back(entry);
    } else if (const auto filter = missing.find(entry.key); filter != missing.end()) {
      KeepChoices(entry, *filter->second);
      result.push_back(*filter->second);
      missing.erase(filter);
    }
  }
  for (const InterpreterEntry& entry : found) {
    if (missing.contains(entry.key)) result.push_back(entry);
  }
  const bool changed = result != entries;
  entries = std::move(result);
  return changed;
}

std::wstring FilterRecord(const std::vector<DocumentFilter>& filters) {
  std::wstring record;
  for (const DocumentFilter& filter : filters) {
    if (!record.empty()) record += L',';
    record += filter.extension + L"=" + filter.name + L"|" + filter.location + L" " +
              filter.arguments + (filter.text ? L"|text" : L"");
  }
  return record;
}

}  // namespace HOLLERIN
