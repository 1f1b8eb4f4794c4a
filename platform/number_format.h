#pragma once

// How numbers look to the user.

#include <cstdint>

#include "platform/text.h"

/// The number format of the user's locale as it was when the object was made.
class CNumberFormatStruct {
 public:
  CNumberFormatStruct();
  /// The number in decimal, its digits in groups as the locale has them. A locale that leaves the
  /// form of numbers open groups thousands by commas.
  CString Format(std::uint64_t number) const;

 private:
  std::wstring locale_;  ///< Its name, such as "de_DE".
};
