#include "platform/types.h"

#include <limits>

namespace {

thread_local DWORD lastError = 0;

}  // namespace

int MulDiv(int number, int numerator, int denominator) {
  if (denominator == 0) return -1;
  const std::int64_t product = static_cast<std::int64_t>(number) * numerator;
  const bool negative = (product < 0) != (denominator < 0);
  const auto magnitude = static_cast<std::uint64_t>(product < 0 ? -product : product);
  const std::int64_t wide = denominator;
  const auto divisor = static_cast<std::uint64_t>(wide < 0 ? -wide : wide);
  const auto rounded = static_cast<std::int64_t>((magnitude + divisor / 2) / divisor);
  const std::int64_t result = negative ? -rounded : rounded;
  if (result < std::numeric_limits<int>::min() || result > std::numeric_limits<int>::max()) {
    return -1;
  }
  return static_cast<int>(result);
}

DWORD GetLastError() { return lastError; }

void SetLastError(DWORD error) { lastError = error; }
