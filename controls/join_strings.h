#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The texts in order with the separator between them. With `quote`, a text that holds the
/// separator is put in double quotes. An empty separator is held by no text.
std::wstring JoinStrings(const std::vector<std::wstring>& texts, std::wstring_view separator,
                         bool quote);
