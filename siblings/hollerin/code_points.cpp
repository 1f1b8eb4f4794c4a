#include "hollerin/code_points.h"

#include <bit>

namespace HOLLERIN {

void AppendCode(std::string& out, std::uint32_t code) {
  const std::size_t size = CodeSize(code);
  if (size == 1) {
    out.push_back(static_cast<char>(code));
    return;
  }
  // The first byte starts with as many ones as the form has bytes, and a zero.
  std::size_t shift = 6 * (size - 1);
  const std::uint32_t lead = 0xFF00U >> size & 0xFFU;
  const std::uint32_t high = shift < 32 ? code >> shift : 0;
  out.push_back(static_cast<char>(lead | high));
  while (shift > 0) {
    shift -= 6;
    out.push_back(static_cast<char>(0x80U | (code >> shift & 0x3FU)));
  }
}

bool TakeCode(const char*& at, const char* end, std::uint32_t& code) {
  const auto lead = static_cast<std::uint8_t>(*at);
  if (lead < 0x80) {
    code = lead;
    ++at;
    return true;
  }
  const int size = std::countl_one(lead);
  if (size < 2 || size > 7 || end - at < size) return false;
  std::uint64_t value = size == 7 ? 0 : lead & 0x7FU >> size;
  for (int i = 1; i < size; ++i) {
    const auto next = static_cast<std::uint8_t>(at[i]);
    if ((next & 0xC0U) != 0x80U) return false;
    value = value << 6 | (next & 0x3FU);
  }
  if (value > 0xFFFFFFFFU || CodeSize(static_cast<std::uint32_t>(value)) != std::size_t(size)) {
    return false;
  }
  code = static_cast<std::uint32_t>(value);
  at += size;
  return true;
}

}  // namespace HOLLERIN
