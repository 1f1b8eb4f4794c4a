#include "platform/resource_reader.h"

#include <algorithm>

namespace {

constexpr WORD kNumberMark = 0xFFFF;

bool IsLead(WORD unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool IsTrail(WORD unit) { return unit >= 0xDC00 && unit < 0xE000; }

std::wstring Decode(const std::vector<WORD>& units) {
  std::wstring text;
  for (std::size_t i = 0; i < units.size(); ++i) {
    const WORD unit = units[i];
    if (IsLead(unit) && i + 1 < units.size() && IsTrail(units[i + 1])) {
      const WORD trail = units[++i];
      text += static_cast<wchar_t>(0x10000 + ((unit - 0xD800) << 10) + (trail - 0xDC00));
    } else {
      text += static_cast<wchar_t>(IsLead(unit) || IsTrail(unit) ? 0xFFFD : unit);
    }
  }
  return text;
}

}  // namespace

void ResourceReader::Refuse(std::string reason) const {
  throw ResourceError{Offset(), std::move(reason)};
}

std::span<const std::byte> ResourceReader::Bytes(std::size_t count, const char* what) {
  if (count > Left()) Refuse(std::string("the data ends inside ") + what);
  const auto piece = bytes_.subspan(position_, count);
  position_ += count;
  return piece;
}

WORD ResourceReader::Word(const char* what) {
  const auto piece = Bytes(2, what);
  return static_cast<WORD>(std::to_integer<unsigned>(piece[0]) | std::to_integer<unsigned>(piece[1])
                                                                     << 8);
}

DWORD ResourceReader::Dword(const char* what) {
  const DWORD low = Word(what);
  return low | static_cast<DWORD>(Word(what)) << 16;
}

std::wstring ResourceReader::Text(const char* what) {
  std::vector<WORD> units;
  while (const WORD unit = Word(what)) units.push_back(unit);
  return Decode(units);
}

std::wstring ResourceReader::Text(std::size_t count, const char* what) {
  std::vector<WORD> units;
  for (std::size_t i = 0; i < count; ++i) units.push_back(Word(what));
  return Decode(units);
}

ResourceName ResourceReader::Name(const char* what) {
  ResourceReader ahead = *this;
  if (ahead.Word(what) != kNumberMark) return {false, 0, Text(what)};
  *this = ahead;
  return {true, Word(what), {}};
}

void ResourceReader::Align() {
  const std::size_t padding = (4 - position_ % 4) % 4;
  position_ += std::min(padding, Left());
}
