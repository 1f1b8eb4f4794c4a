#pragma once

// The parts of compact texts: every text with its length before it, so that any character may
// stand in it. In a wide text a character is held as a wchar_t, in a narrow one in the byte form
// of code_points.h.

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <type_traits>

#include "hollerin/code_points.h"

namespace HOLLERIN {

constexpr std::size_t kSumLength = 16;  ///< Characters of a checksum: hexadecimal digits.
constexpr std::string_view kSumDigits = "0123456789abcdef";

/// Appends the parts to a text.
template <class Char>
class CountedWriter {
 public:
  explicit CountedWriter(std::basic_string<Char>& out) : out_(out) {}

  void Tag(char tag) { out_.push_back(static_cast<Char>(tag)); }

  template <class Integer>
  void Number(Integer number, char end) {
    char digits[24];
    const auto result = std::to_chars(digits, digits + sizeof digits, number);
    out_.append(digits, result.ptr);
    Tag(end);
  }

  void Text(std::wstring_view text) {
    if constexpr (std::is_same_v<Char, wchar_t>) {
      Number(text.size(), ':');
      out_.append(text);
    } else if (IsAscii(text)) {
      Number(text.size(), ':');
      out_.append(text.begin(), text.end());
    } else {
      std::size_t size = 0;
      for (const wchar_t c : text) size += CodeSize(CodeOf(c));
      Number(size, ':');
      for (const wchar_t c : text) AppendCode(out_, CodeOf(c));
    }
  }

  void Sum(std::uint64_t sum) {
    for (int shift = 60; shift >= 0; shift -= 4) Tag(kSumDigits[sum >> shift & 15U]);
  }

 private:
  static bool IsAscii(std::wstring_view text) {
    return std::all_of(text.begin(), text.end(), [](wchar_t c) { return CodeOf(c) < 0x80; });
  }

  std::basic_string<Char>& out_;
};

/// Reads the parts of a text; every function is false, or 0, when its part does not stand there.
template <class Char>
class CountedReader {
 public:
  explicit CountedReader(std::basic_string_view<Char> text)
      : at_(text.data()), end_(text.data() + text.size()) {}

  bool AtEnd() const { return at_ == end_; }
  Char Tag() { return AtEnd() ? Char{} : *at_++; }

  bool Number(std::int64_t& number, char end) {
    const bool negative = !AtEnd() && *at_ == '-' && at_++ != nullptr;
    const Char* const start = at_;
    number = 0;
    for (; !AtEnd() && *at_ >= '0' && *at_ <= '9'; ++at_) {
      if (number > std::numeric_limits<std::int32_t>::max()) return false;
      number = number * 10 + (*at_ - '0');
    }
    if (negative) number = -number;
    return at_ != start && Tag() == static_cast<Char>(end);
  }

  bool Text(std::wstring& text) {
    std::basic_string_view<Char> held;
    if (!Held(held)) return false;
    if constexpr (std::is_same_v<Char, wchar_t>) {
      text.assign(held);
      return true;
    } else {
      return Decode(held, text);
    }
  }

  /// The characters of a text as they are held.
  bool Held(std::basic_string_view<Char>& held) {
    std::int64_t length = 0;
    if (!Number(length, ':') || length < 0 || length > end_ - at_) return false;
    held = {at_, static_cast<std::size_t>(length)};
    at_ += length;
    return true;
  }

 private:
  static bool Decode(std::basic_string_view<Char> held, std::wstring& text) {
    text.resize(held.size());
    std::size_t length = 0;
    const Char* const end = held.data() + held.size();
    for (const Char* at = held.data(); at != end;) {
      std::uint32_t code = 0;
      if (!TakeCode(at, end, code)) return false;
      text[length++] = static_cast<wchar_t>(code);
    }
    text.resize(length);
    return true;
  }

  const Char* at_;
  const Char* end_;
};

/// Takes the checksum at the end off the text; nothing when there is none.
template <class Char>
std::optional<std::uint64_t> TakeSum(std::basic_string_view<Char>& text) {
  if (text.size() < kSumLength) return std::nullopt;
  std::uint64_t sum = 0;
  for (const Char digit : text.substr(text.size() - kSumLength)) {
    const std::size_t place = digit < 0 || digit > 'f' ? std::string_view::npos
                                                       : kSumDigits.find(static_cast<char>(digit));
    if (place == std::string_view::npos) return std::nullopt;
    sum = sum << 4 | place;
  }
  text.remove_suffix(kSumLength);
  return sum;
}

}  // namespace HOLLERIN
