#include <algorithm>
#include <cstdint>
#include <limits>

#include "platform/text.h"

namespace {

/// Wider columns than this are a mistake in the pattern, not a wish.
constexpr unsigned kMaxWidth = 1000;

struct Conversion {
  std::size_t length = 0;  ///< Characters from the percent sign to the letter; 0 for none.
  unsigned width = 0;
  bool zeros = false;
  wchar_t letter = 0;
};

Conversion ReadConversion(std::wstring_view pattern) {
  Conversion found;
  std::size_t at = 1;
  for (; at < pattern.size() && pattern[at] == L'0'; ++at) found.zeros = true;
  for (; at < pattern.size() && pattern[at] >= L'0' && pattern[at] <= L'9'; ++at) {
    found.width = found.width * 10 + static_cast<unsigned>(pattern[at] - L'0');
    if (found.width > kMaxWidth) return {};
  }
  if (at == pattern.size()) return {};
  found.letter = pattern[at];
  found.length = at + 1;
  const bool known = std::wstring_view(L"sduix").find(found.letter) != std::wstring_view::npos;
  return known || (found.letter == L'%' && at == 1) ? found : Conversion{};
}

/// A negative number that fits in 32 bits stands for its 32-bit pattern, as a status does.
std::uint64_t Unsigned(long long value) {
  if (value < 0 && value >= std::numeric_limits<std::int32_t>::min()) {
    return static_cast<std::uint32_t>(value);
  }
  return static_cast<std::uint64_t>(value);
}

std::wstring Digits(std::uint64_t value, unsigned base) {
  std::wstring digits;
  do {
    digits.insert(digits.begin(), L"0123456789abcdef"[value % base]);
    value /= base;
  } while (value != 0);
  return digits;
}

std::wstring Number(long long value, const Conversion& conversion) {
  const bool isSigned = conversion.letter == L'd' || conversion.letter == L'i';
  const bool minus = isSigned && value < 0;
  const std::uint64_t magnitude = minus ? 0 - static_cast<std::uint64_t>(value) : Unsigned(value);
  std::wstring digits = Digits(magnitude, conversion.letter == L'x' ? 16 : 10);
  const std::size_t taken = digits.size() + (minus ? 1 : 0);
  if (conversion.zeros && taken < conversion.width) {
    digits.insert(0, conversion.width - taken, L'0');
  }
  return minus ? L"-" + digits : digits;
}

/// The text of the conversion; nothing when the argument is of another kind.
std::optional<std::wstring> Convert(const Conversion& conversion, const FormatArgument& argument) {
  const bool wantsText = conversion.letter == L's';
  if (wantsText != std::holds_alternative<std::wstring>(argument)) return std::nullopt;
  std::wstring text = wantsText ? std::get<std::wstring>(argument)
                                : Number(std::get<long long>(argument), conversion);
  if (text.size() < conversion.width) text.insert(0, conversion.width - text.size(), L' ');
  return text;
}

}  // namespace

std::wstring FormatText(std::wstring_view pattern, const std::vector<FormatArgument>& arguments) {
  std::wstring out;
  auto argument = arguments.begin();
  while (!pattern.empty()) {
    const std::size_t plain = std::min(pattern.find(L'%'), pattern.size());
    out += pattern.substr(0, plain);
    pattern.remove_prefix(plain);
    if (pattern.empty()) break;

    const Conversion conversion = ReadConversion(pattern);
    const std::size_t length = std::max<std::size_t>(conversion.length, 1);
    std::optional<std::wstring> text;
    if (conversion.letter == L'%') {
      text = L"%";
    } else if (conversion.length != 0 && argument != arguments.end()) {
      text = Convert(conversion, *argument++);
    }
    out += text ? std::wstring_view(*text) : pattern.substr(0, length);
    pattern.remove_prefix(length);
  }
  return out;
}
