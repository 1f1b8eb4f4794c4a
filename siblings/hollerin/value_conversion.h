#pragma once

// Reading a value as another type than it was written in.

#include <optional>
#include <string>

#include "hollerin/application.h"

namespace HOLLERIN {

/// A boolean; the integers 0 and 1; the texts "true", "false", "0" and "1".
std::optional<bool> ToBool(const Value& value);
/// An integer; a boolean as 0 or 1; a text that is a decimal integer from end to end and fits.
std::optional<std::int32_t> ToInt(const Value& value);
/// A text; an integer in decimal; a boolean as "true" or "false".
std::wstring ToText(const Value& value);

/// A decimal integer, "-" allowed, without blanks or a plus sign; nothing when it does not fit.
std::optional<std::int32_t> ParseInt(std::wstring_view text);

}  // namespace HOLLERIN
