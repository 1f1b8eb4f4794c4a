#pragma once

// CString, the text of dialogs, and conversions between wide text and UTF-8.

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/types.h"

/// UTF-8 of a wide text; a code point that cannot be encoded becomes U+FFFD.
std::string ToUtf8(std::wstring_view text);

/// Wide text of UTF-8; every malformed byte becomes U+FFFD.
std::wstring FromUtf8(std::string_view bytes);

/// As FromUtf8, but nothing when any byte is malformed.
std::optional<std::wstring> FromUtf8Strict(std::string_view bytes);

/// Wide text of UTF-16 with the lower byte of each unit first; a lone surrogate becomes U+FFFD, and
/// a last odd byte does not count.
std::wstring FromUtf16(std::span<const BYTE> bytes);

/// One argument of FormatText: a text or an integer.
using FormatArgument = std::variant<std::wstring, long long>;

/// Fills a printf-like pattern that may come from a language file. Known are %s, %d, %u, %i, %x
/// and %%, a width and leading zeros included. A conversion without a matching argument, or of
/// another kind than its argument, stays in the text as it stands; arguments are never read past
/// their end, so that no pattern can do harm.
std::wstring FormatText(std::wstring_view pattern, const std::vector<FormatArgument>& arguments);

class CString {
 public:
  CString() = default;
  CString(const wchar_t* text) : text_(text != nullptr ? text : L"") {}
  CString(std::wstring text) : text_(std::move(text)) {}

  operator const wchar_t*() const { return text_.c_str(); }
  const wchar_t* GetString() const { return text_.c_str(); }
  const std::wstring& Str() const { return text_; }

  int GetLength() const { return static_cast<int>(text_.size()); }
  bool IsEmpty() const { return text_.empty(); }
  void Empty() { text_.clear(); }
  wchar_t GetAt(int index) const { return text_.at(static_cast<std::size_t>(index)); }

  CString Left(int count) const;
  CString Mid(int first) const;
  int Find(const wchar_t* part, int start = 0) const;
  int CompareNoCase(const wchar_t* other) const;
  CString& Trim();
  CString& MakeLower();

  /// Replaces the text by the filled pattern (see FormatText). Arguments are texts or integers.
  template <class... Arguments>
  void Format(std::wstring_view pattern, const Arguments&... arguments) {
    text_ = FormatText(pattern, {ToArgument(arguments)...});
  }

  CString& operator+=(const wchar_t* text) { return text_ += text, *this; }
  CString& operator+=(wchar_t character) { return text_ += character, *this; }
  friend CString operator+(const CString& a, const CString& b) {
    return CString(a.text_ + b.text_);
  }
  friend bool operator==(const CString& a, const CString& b) { return a.text_ == b.text_; }
  friend bool operator==(const CString& a, const wchar_t* b) { return a.text_ == b; }
  friend bool operator==(const CString& a, const std::wstring& b) { return a.text_ == b; }

  /// The string-table entry with this number in the current module; FALSE when there is none.
  BOOL LoadString(UINT id);

 private:
  static FormatArgument ToArgument(const CString& text) { return text.text_; }
  static FormatArgument ToArgument(const std::wstring& text) { return text; }
  static FormatArgument ToArgument(const wchar_t* text) { return std::wstring(text); }
  template <class Integer>
  requires std::is_integral_v<Integer>
  static FormatArgument ToArgument(Integer value) { return static_cast<long long>(value); }

  std::wstring text_;
};
