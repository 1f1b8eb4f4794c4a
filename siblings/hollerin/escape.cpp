#include "hollerin/escape.h"

#include <algorithm>
#include <cstdint>

#include "hollerin/code_points.h"

namespace HOLLERIN {
namespace {

constexpr std::wstring_view kHexDigits = L"0123456789ABCDEF";
constexpr std::size_t kMaxDigits = 8;

bool IsPlain(wchar_t character) {
  const auto code = CodeOf(character);
  return code >= 0x20 && (code < 0x7F || code > 0x9F) && IsXmlCharacter(code);
}

void AppendEscaped(std::wstring& out, wchar_t character) {
  const auto code = CodeOf(character);
  int shift = 28;
  while (shift > 0 && code >> shift == 0) shift -= 4;
  out += L"\\u{";
  for (; shift >= 0; shift -= 4) out += kHexDigits[code >> shift & 15U];
  out += L'}';
}

}  // namespace

bool NeedsEscape(std::wstring_view text) {
  if (text.empty()) return false;
  return text.front() == L' ' || text.back() == L' ' ||
         !std::all_of(text.begin(), text.end(), IsPlain);
}

std::wstring Escape(std::wstring_view text) {
  std::wstring out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool outerBlank = text[i] == L' ' && (i == 0 || i + 1 == text.size());
    if (text[i] == L'\\') {
      out += L"\\\\";
    } else if (outerBlank || !IsPlain(text[i])) {
      AppendEscaped(out, text[i]);
    } else {
      out += text[i];
    }
  }
  return out;
}

std::optional<std::wstring> Unescape(std::wstring_view text) {
  std::wstring out;
  while (!text.empty()) {
    const std::size_t plain = std::min(text.find(L'\\'), text.size());
    out += text.substr(0, plain);
    text.remove_prefix(plain);
    if (text.empty()) break;
    if (text.starts_with(L"\\\\")) {
      out += L'\\';
      text.remove_prefix(2);
      continue;
    }
    const std::size_t end = text.find(L'}');
    if (!text.starts_with(L"\\u{") || end == text.npos) return std::nullopt;
    const std::wstring_view digits = text.substr(3, end - 3);
    if (digits.empty() || digits.size() > kMaxDigits) return std::nullopt;
    std::uint32_t code = 0;
    for (const wchar_t digit : digits) {
      const std::size_t place = kHexDigits.find(digit);
      if (place == kHexDigits.npos) return std::nullopt;
      code = code << 4 | static_cast<std::uint32_t>(place);
    }
    out += static_cast<wchar_t>(code);
    text.remove_prefix(end + 1);
  }
  return out;
}

}  // namespace HOLLERIN
