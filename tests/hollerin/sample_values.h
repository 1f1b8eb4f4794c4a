#pragma once

#include <limits>

#include "hollerin/application.h"

/// Texts that file formats are known to lose or change.
inline std::vector<std::wstring> NastyTexts() {
  const auto code = [](std::uint32_t number) {
    return std::wstring(1, static_cast<wchar_t>(number));
  };
  std::vector<std::wstring> texts = {
      L"",
      L" ",
      L"   leading and trailing   ",
      L"\t",
      L"line\nline",
      L"line\r\nline\r",
      std::wstring(L"a\0b", 3),
      std::wstring(1, L'\0'),
      L"<&>\"' ]]> <!-- --> &amp; &#0; <![CDATA[ ]]>",
      L"\\",
      L"\\u{41}",
      L"back\\slash\n",
      L"C:\\folder\\{1}\\",
      L"12:34;5:E0123456789abcdef",
      L"S1:b1:x1",
      L"\u00E4\u00F6\u00FC \u4E2D\u6587 \u0301combining",
      L"\U0001F600",
      L"\uFEFFmark",
      std::wstring(5000, L'x'),
  };
  for (const std::uint32_t number :
       {0x1U,       0x7FU,       0x80U,       0x85U,      0x9FU,     0xA0U,
        0x7FFU,     0x800U,      0x2028U,     0xD800U,    0xDFFFU,   0xFFFEU,
        0xFFFFU,    0x10FFFFU,   0x110000U,   0x1FFFFFU,  0x200000U, 0x3FFFFFFU,
        0x4000000U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
    texts.push_back(code(number));
    texts.push_back(L"a" + code(number) + L"b");
  }
  return texts;
}

/// Values of every type, with every nasty text as a section, as a key and as a value.
inline HOLLERIN::Values NastyValues() {
  HOLLERIN::Values values;
  std::int32_t n = 0;
  for (const std::wstring& text : NastyTexts()) {
    values[L"Values"][std::to_wstring(n++)] = text;
    values[L"Keys"][text] = n;
    values[text][L"Key"] = n % 2 == 0;
  }
  values[L"Numbers"][L"least"] = std::numeric_limits<std::int32_t>::min();
  values[L"Numbers"][L"greatest"] = std::numeric_limits<std::int32_t>::max();
  return values;
}

/// A few values of every type.
inline HOLLERIN::Values SmallValues() {
  return {{L"Options",
           {{L"On", true}, {L"Count", std::int32_t{-12}}, {L"Name", std::wstring(L"\u00E4 b")}}},
          {L"\x01", {{L"k", std::wstring(L"\n")}}}};
}
