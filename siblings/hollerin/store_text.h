#pragma once

// The compact text form of a store: its values one after another, each text with its length before
// it, and a checksum at the end. Made for speed; the wide and the narrow form differ only in how a
// character is held (a wchar_t, or the byte form of code_points.h).
//
//   HOLLERIN1               the form and its version
//   S<text>                 a section begins
//   b<text><0 or 1>         a boolean: key, value
//   i<text><decimal>;       an integer
//   s<text><text>           a text
//   E<16 hexadecimal>       the end, with the checksum of all characters before it
//
// where <text> is a length in decimal, ":" and that many characters.

#include <optional>
#include <string>

#include "hollerin/application.h"

namespace HOLLERIN {

void FormatStoreText(const Values& values, std::wstring& text);
void FormatStoreText(const Values& values, std::string& text);

/// Nothing when the text is damaged: any one changed, missing or added character is found out.
std::optional<Values> ParseStoreText(std::wstring_view text);
std::optional<Values> ParseStoreText(std::string_view text);

}  // namespace HOLLERIN
