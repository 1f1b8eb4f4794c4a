#pragma once

// Numbers of bytes for the user.

#include <cstdint>

#include "platform/text.h"

/// Units of sizes, as the application numbers them.
enum SizeUnit { kUnitBytes = 1, kUnitKilobytes, kUnitMegabytes, kUnitGigabytes, kUnitTerabytes };

/// The unit that a number of bytes is shown in: gigabytes from one gigabyte on (and for a negative
/// number, which has all its 64 bits), megabytes from one megabyte on, else kilobytes. Exactly one
/// of a unit is still shown as 1024 of the smaller one.
int UnitOf(std::int64_t bytes);

/// The bytes in that unit, with its name in the language in use: "1.50 MB".
CString ByteSizeText(std::int64_t bytes);

/// A number with two decimals, a blank and the unit's name; "Unknown" for an unknown unit. A
/// negative number shows as 0 and one above 1e16 as 99999999999.
CString SizeText(double number, int unit);
