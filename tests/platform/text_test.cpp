#include "platform/text.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <thread>

#include "platform/exceptions.h"
#include "platform/machine.h"

namespace {

TEST(Types, MulDivRoundsHalfAwayFromZeroAndReportsWhatDoesNotFit) {
  const struct {
    int number, numerator, denominator, expected;
  } rows[] = {
      {7, 1, 2, 4},
      {-7, 1, 2, -4},
      {7, -1, 2, -4},
      {7, 1, -2, -4},
      {5, 1, 4, 1},
      {100, 96, 72, 133},
      {1, 1, 0, -1},
      {INT_MAX, 2, 1, -1},
      {INT_MIN, 1, 1, INT_MIN},
      {INT_MIN, -1, 1, -1},
      {INT_MIN, INT_MIN, INT_MIN, INT_MIN},
      {INT_MAX, INT_MAX, INT_MAX, INT_MAX},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(MulDiv(row.number, row.numerator, row.denominator), row.expected)
        << row.number << " * " << row.numerator << " / " << row.denominator;
  }
}

TEST(Types, LastErrorBelongsToItsThread) {
  SetLastError(5);
  DWORD seen = 1;
  std::thread([&seen] {
    seen = GetLastError();
    SetLastError(7);
  }).join();
  EXPECT_EQ(seen, 0U);
  EXPECT_EQ(GetLastError(), 5U);
}

TEST(Text, Utf8OfEveryLengthComesBack) {
  const std::wstring text = L"A\x7F\x80\x7FF\x800\xD7FF\xE000\xFFFD\xFFFF\U00010000\U0010FFFF";
  const std::string bytes = ToUtf8(text);
  EXPECT_EQ(bytes.size(), 1U + 1 + 2 + 2 + 3 + 3 + 3 + 3 + 3 + 4 + 4);
  EXPECT_EQ(FromUtf8(bytes), text);
  EXPECT_EQ(FromUtf8Strict(bytes), text);
  EXPECT_EQ(ToUtf8(L"\u00e4\u20ac\U0001F50D"), "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x94\x8D");
}

TEST(Text, MalformedUtf8IsReplacedByteByByte) {
  const struct {
    std::string_view bytes;
    const wchar_t* expected;
  } rows[] = {
      {"a\x80z", L"a\xFFFDz"},                            // a byte that continues nothing
      {"\xC3", L"\xFFFD"},                                // cut off
      {"\xE2\x82z", L"\xFFFD\xFFFDz"},                    // broken off
      {"\xC0\xAF", L"\xFFFD\xFFFD"},                      // longer than needed
      {"\xE0\x80\x80", L"\xFFFD\xFFFD\xFFFD"},            // longer than needed
      {"\xED\xA0\x80", L"\xFFFD\xFFFD\xFFFD"},            // a surrogate
      {"\xF4\x90\x80\x80", L"\xFFFD\xFFFD\xFFFD\xFFFD"},  // beyond the last code point
      {"\xFF\xFE", L"\xFFFD\xFFFD"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(FromUtf8(row.bytes), row.expected);
    EXPECT_FALSE(FromUtf8Strict(row.bytes).has_value());
  }
}

TEST(Text, WhatIsNoCodePointIsReplaced) {
  const std::wstring text = {L'a', static_cast<wchar_t>(0xD800), static_cast<wchar_t>(0x110000),
                             static_cast<wchar_t>(-1), L'b'};
  EXPECT_EQ(FromUtf8(ToUtf8(text)),
            L"a\xFFFD\xFFFD\xFFFD"
            L"b");
}

TEST(Text, PatternsAreFilled) {
  const FormatArgument text = std::wstring(L"abc");
  const auto number = [](long long value) { return FormatArgument(value); };
  const struct {
    const wchar_t* pattern;
    std::vector<FormatArgument> arguments;
    const wchar_t* expected;
  } rows[] = {
      {L"%s (%s)", {text, text}, L"abc (abc)"},
      {L"[%5s|%2s]", {text, text}, L"[  abc|abc]"},
      {L"%d %i %u", {number(-5), number(7), number(9)}, L"-5 7 9"},
      {L"[%4d|%04d|%-4d]", {number(-5), number(-5), number(-5)}, L"[  -5|-005|%-4d]"},
      {L"0x%x 0x%08x", {number(-2147467259), number(255)}, L"0x80004005 0x000000ff"},
      {L"%d %u", {number(LLONG_MIN), number(-1)}, L"-9223372036854775808 4294967295"},
      {L"100%% of %s", {text}, L"100% of abc"},
      // What cannot be filled stays as it stands.
      {L"%s %s %d", {text}, L"abc %s %d"},
      {L"%s %d", {number(1), text}, L"%s %d"},
      {L"%s %d", {number(1), number(2)}, L"%s 2"},
      {L"%n %f %ls %*d %s", {text}, L"%n %f %ls %*d abc"},
      {L"100% of %", {text}, L"100% of %"},
      {L"%0", {text}, L"%0"},
      {L"%99999999999999999999d", {number(1)}, L"%99999999999999999999d"},
      {L"%5%", {}, L"%5%"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(FormatText(row.pattern, row.arguments), row.expected) << ToUtf8(row.pattern);
  }
}

TEST(Text, CStringCutsFindsAndCompares) {
  const CString text(L"Hello hello");
  EXPECT_EQ(text.Left(5), L"Hello");
  EXPECT_EQ(text.Left(-1), L"");
  EXPECT_EQ(text.Left(99), L"Hello hello");
  EXPECT_EQ(text.Mid(6), L"hello");
  EXPECT_EQ(text.Mid(99), L"");
  EXPECT_EQ(text.Mid(-3), L"Hello hello");
  EXPECT_EQ(text.Find(L"ell"), 1);
  EXPECT_EQ(text.Find(L"ell", 2), 7);
  EXPECT_EQ(text.Find(L"ell", 99), -1);
  EXPECT_EQ(text.Find(L"xyz"), -1);
  EXPECT_EQ(CString(L"\t  a b \r\n").Trim(), L"a b");
  EXPECT_EQ(CString(L" \n").Trim(), L"");
  EXPECT_EQ(CString(L"STRASSE \u00c4\u0416").CompareNoCase(L"strasse \u00e4\u0436"), 0);
  EXPECT_LT(CString(L"abc").CompareNoCase(L"ABD"), 0);
  EXPECT_GT(CString(L"abc").CompareNoCase(L"AB"), 0);
  CString filled;
  filled.Format(L"unknown-%d %s", std::int64_t{-3}, CString(L"x"));
  EXPECT_EQ(filled, L"unknown--3 x");
  EXPECT_FALSE(filled.LoadString(5031)) << "no module is current";
}

TEST(Exceptions, TellWhatHappened) {
  CString text;
  EXPECT_FALSE(CUserException().GetErrorMessage(&text));
  EXPECT_TRUE(CMemoryException().GetErrorMessage(&text));
  EXPECT_EQ(text, L"Out of memory.");
  try {
    AfxThrowResourceException(L"dialog 7 is missing");
  } catch (CException* exception) {
    EXPECT_TRUE(exception->GetErrorMessage(&text));
    exception->Delete();
  }
  EXPECT_EQ(text, L"dialog 7 is missing");
  EXPECT_EQ(_com_error(E_FAIL).ErrorMessage(), L"Unspecified error");
  EXPECT_EQ(_com_error(static_cast<HRESULT>(0x80070002U)).ErrorMessage(),
            L"Unknown error 0x80070002");
}

TEST(Machine, IsReplacedAndComesBack) {
  struct Failing : Machine {
    bool Fails(std::wstring_view operation) const override { return operation == L"Save"; }
  };
  SetMachine(std::make_shared<Failing>());
  EXPECT_TRUE(GetMachine().Fails(L"Save"));
  EXPECT_FALSE(GetMachine().Fails(L"Load"));
  SetMachine(nullptr);
  EXPECT_FALSE(GetMachine().Fails(L"Save"));
  EXPECT_FALSE(GetMachine().LanguageFile().has_value());
}

}  // namespace
