#include "hollerin/search_filter_text.h"

#include <algorithm>

#include "hollerin/store_text.h"

namespace HOLLERIN {
namespace {

constexpr std::size_t kNumberLength = 8;
constexpr std::size_t kValuesOfFilter = 5;

/// Names of sections are sorted as texts, so all of them are equally long.
std::wstring SectionName(std::size_t number) {
  const std::wstring digits = std::to_wstring(number);
  return std::wstring(kNumberLength - std::min(kNumberLength, digits.size()), L'0') + digits;
}

template <class Type>
bool Take(const Section& section, const wchar_t* key, Type& target) {
  const auto found = section.find(key);
  const Type* const value = found != section.end() ? std::get_if<Type>(&found->second) : nullptr;
  if (value != nullptr) target = *value;
  return value != nullptr;
}

bool TakeFilter(const Section& section, SearchFilterValues& filter) {
  return section.size() == kValuesOfFilter && Take(section, L"Enabled", filter.enabled) &&
         Take(section, L"Kind", filter.kind) && Take(section, L"Name", filter.name) &&
         Take(section, L"Type", filter.matchType) && Take(section, L"Value", filter.value);
}

}  // namespace

std::wstring FormatSearchFilters(const std::vector<SearchFilterValues>& filters) {
  Values values;
  for (const SearchFilterValues& filter : filters) {
    values.emplace_hint(values.end(), SectionName(values.size()),
                        Section{{L"Enabled", filter.enabled},
                                {L"Kind", filter.kind},
                                {L"Name", filter.name},
                                {L"Type", filter.matchType},
                                {L"Value", filter.value}});
  }
  std::wstring text;
  FormatStoreText(values, text);
  return text;
}

std::optional<std::vector<SearchFilterValues>> ParseSearchFilters(std::wstring_view text) {
  std::vector<SearchFilterValues> filters;
  if (text.empty()) return filters;
  const std::optional<Values> values = ParseStoreText(text);
  if (!values) return std::nullopt;
  for (const auto& [name, section] : *values) {
    if (name != SectionName(filters.size())) return std::nullopt;
    if (!TakeFilter(section, filters.emplace_back())) return std::nullopt;
  }
  return filters;
}

}  // namespace HOLLERIN
