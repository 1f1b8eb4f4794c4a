#pragma once

// What an error report says.

#include <string>
#include <string_view>

#include "foundation/exception.h"

/// The failure in words: task, status, system error and line.
std::wstring DescribeRecord(const ErrorRecord& record);

/// The whole message. `interactive` says whether a person reads it (else the log), `context` what
/// the user was doing (may be empty), `source` the reporting source file, by path or name.
std::wstring BuildErrorText(bool interactive, std::wstring_view context, std::wstring_view source,
                            const ErrorRecord& record);

/// A text of more than 2000 characters as its first and last 1000 with a line of three dots
/// between them; a shorter one whole.
std::wstring ShortenForDisplay(std::wstring_view text);
