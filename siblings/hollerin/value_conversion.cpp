#include "hollerin/value_conversion.h"

#include <limits>

namespace HOLLERIN {

std::optional<std::int32_t> ParseInt(std::wstring_view text) {
  const bool negative = text.starts_with(L'-');
  if (negative) text.remove_prefix(1);
  if (text.empty()) return std::nullopt;
  using Limits = std::numeric_limits<std::int32_t>;
  const std::int64_t greatest = negative ? -std::int64_t{Limits::min()} : Limits::max();
  std::int64_t number = 0;
  for (const wchar_t digit : text) {
    if (digit < L'0' || digit > L'9') return std::nullopt;
    number = number * 10 + (digit - L'0');
    if (number > greatest) return std::nullopt;
  }
  return static_cast<std::int32_t>(negative ? -number : number);
}

std::optional<std::int32_t> ToInt(const Value& value) {
  if (const auto* number = std::get_if<std::int32_t>(&value)) return *number;
  if (const auto* truth = std::get_if<bool>(&value)) return *truth ? 1 : 0;
  return ParseInt(std::get<std::wstring>(value));
}

std::optional<bool> ToBool(const Value& value) {
  if (const auto* truth = std::get_if<bool>(&value)) return *truth;
  if (const auto* text = std::get_if<std::wstring>(&value)) {
    if (*text == L"true") return true;
    if (*text == L"false") return false;
  }
  const std::optional<std::int32_t> number = ToInt(value);
  if (!number || (*number != 0 && *number != 1)) return std::nullopt;
  return *number == 1;
}

std::wstring ToText(const Value& value) {
  if (const auto* text = std::get_if<std::wstring>(&value)) return *text;
  if (const auto* truth = std::get_if<bool>(&value)) return *truth ? L"true" : L"false";
  return std::to_wstring(std::get<std::int32_t>(value));
}

}  // namespace HOLLERIN
