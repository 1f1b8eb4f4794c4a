#pragma once

// Texts that XML cannot carry as they stand. In an escaped text "\\" stands for a backslash and
// "\u{HEX}" for the character with that number, one to eight hexadecimal digits.

#include <optional>
#include <string>

namespace HOLLERIN {

/// Whether the text would come back changed from XML, or be unreadable in it: it holds a control
/// character or something that is no code point, or starts or ends with a blank.
bool NeedsEscape(std::wstring_view text);

std::wstring Escape(std::wstring_view text);

/// Nothing when a backslash starts neither form.
std::optional<std::wstring> Unescape(std::wstring_view text);

}  // namespace HOLLERIN
