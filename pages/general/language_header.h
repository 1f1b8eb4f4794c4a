#pragma once

// What the beginning of a language file says about its language.

#include <optional>
#include <string>
#include <string_view>

/// The root element and its name of the language lie within so many bytes of every language file.
constexpr std::size_t kLanguageHeaderSize = 200;

/// The language's own name, as the first bytes of its file give it; nothing when they are no UTF-8
/// or hold no such name. A character that `bytes` cut off at their end does not count.
std::optional<std::wstring> LanguageNameIn(std::string_view bytes);
