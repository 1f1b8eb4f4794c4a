#pragma once

// The form in which a store keeps the persistent search filters: one text under the key "List" of
// the section "PersistentFilters". It is the compact text form of a store (store_text.h) with one
// section for each filter, named by its number ("00000000", "00000001", ...), and the values
// "Enabled", "Kind", "Name", "Type" and "Value" in each. So every name and value comes back, and
// every damage is found out by the checksum.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace HOLLERIN {

constexpr const wchar_t* kSearchFilterSection = L"PersistentFilters";
constexpr const wchar_t* kSearchFilterListKey = L"List";

/// One filter; what a new one starts with.
struct SearchFilterValues {
  bool enabled = true;
  std::int32_t kind = 1;
  std::wstring name;
  std::int32_t matchType = 4;
  std::wstring value;

  bool operator==(const SearchFilterValues&) const = default;
};

std::wstring FormatSearchFilters(const std::vector<SearchFilterValues>& filters);

/// Nothing when the text is damaged. An empty text holds no filters.
std::optional<std::vector<SearchFilterValues>> ParseSearchFilters(std::wstring_view text);

}  // namespace HOLLERIN
