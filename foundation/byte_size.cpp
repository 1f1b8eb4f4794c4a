#include "foundation/byte_size.h"

#include <charconv>

#include "foundation/language.h"
#include "resources/text_ids.h"

namespace {

constexpr std::int64_t kMegabyte = 0x100000;
constexpr std::int64_t kGigabyte = 0x40000000;

struct Unit {
  int number;
  unsigned name;
  double bytes;
};

constexpr Unit kUnits[] = {
    {kUnitBytes, TextId::kBytes, 1},
    {kUnitKilobytes, TextId::kKilobytes, 1024},
    {kUnitMegabytes, TextId::kMegabytes, kMegabyte},
    {kUnitGigabytes, TextId::kGigabytes, kGigabyte},
    {kUnitTerabytes, TextId::kTerabytes, 1024.0 * kGigabyte},
};

const Unit* FindUnit(int number) {
  for (const Unit& unit : kUnits) {
    if (unit.number == number) return &unit;
  }
  return nullptr;
}

}  // namespace

int UnitOf(std::int64_t bytes) {
  if (bytes < 0 || bytes > kGigabyte) return kUnitGigabytes;
  return bytes > kMegabyte ? kUnitMegabytes : kUnitKilobytes;
}

CString SizeText(double number, int unit) {
  constexpr double kGreatest = 1e16;
  constexpr double kShownInstead = 99999999999.0;
  if (number < 0) number = 0;
  if (number > kGreatest) number = kShownInstead;
  char digits[32];
  const auto end =
      std::to_chars(digits, digits + sizeof digits, number, std::chars_format::fixed, 2);
  const Unit* const known = FindUnit(unit);
  return CString(std::wstring(digits, end.ptr) + L" ") +
         (known != nullptr ? LanguageString(known->name) : CString(L"Unknown"));
}

CString ByteSizeText(std::int64_t bytes) {
  const int unit = UnitOf(bytes);
  return SizeText(static_cast<double>(bytes) / FindUnit(unit)->bytes, unit);
}
