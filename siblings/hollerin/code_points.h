#pragma once

// A byte form for any 32-bit character: UTF-8, carried on to seven bytes so that characters that
// are no code points survive as well. Every character has exactly one form.

#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>

namespace HOLLERIN {

/// The number of a character; characters are signed here, their numbers are not.
constexpr std::uint32_t CodeOf(wchar_t character) {
  return static_cast<std::make_unsigned_t<wchar_t>>(character);
}

/// How many bytes the form of `code` has: 1 to 7.
constexpr std::size_t CodeSize(std::uint32_t code) {
  if (code < 0x80) return 1;
  std::size_t size = 2;
  // A form of n bytes carries 5n + 1 bits.
  while (size < 7 && code >> (5 * size + 1) != 0) ++size;
  return size;
}

void AppendCode(std::string& out, std::uint32_t code);

/// Reads the character at `at`, which lies before `end`, and moves behind it. False, and nothing
/// moved, when no form starts there.
bool TakeCode(const char*& at, const char* end, std::uint32_t& code);

/// Whether XML can carry the character at all.
constexpr bool IsXmlCharacter(std::uint32_t code) {
  if (code < 0x20) return code == '\t' || code == '\n' || code == '\r';
  return code <= 0xD7FF || (code >= 0xE000 && code <= 0xFFFD) ||
         (code >= 0x10000 && code <= 0x10FFFF);
}

}  // namespace HOLLERIN
