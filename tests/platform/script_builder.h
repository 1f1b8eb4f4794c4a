#pragma once

// Compiled resource scripts made by hand, byte by byte.

#include <cstddef>
#include <initializer_list>
#include <string>
#include <vector>

using Bytes = std::vector<std::byte>;

/// Writes the pieces of a compiled script.
struct Builder {
  Bytes bytes;

  Builder& Word(unsigned value) {
    bytes.push_back(std::byte(value & 0xFF));
    bytes.push_back(std::byte(value >> 8 & 0xFF));
    return *this;
  }
  Builder& Words(std::initializer_list<unsigned> values) {
    for (const unsigned value : values) Word(value);
    return *this;
  }
  Builder& Dword(unsigned value) { return Word(value & 0xFFFF).Word(value >> 16); }
  Builder& Text(const std::u16string& text) {
    for (const char16_t unit : text) Word(unit);
    return Word(0);
  }
  Builder& Counted(const std::u16string& text) {
    Word(static_cast<unsigned>(text.size()));
    for (const char16_t unit : text) Word(unit);
    return *this;
  }
  Builder& Align() {
    while (bytes.size() % 4 != 0) bytes.push_back(std::byte(0));
    return *this;
  }
  Builder& Append(const Bytes& data) {
    bytes.insert(bytes.end(), data.begin(), data.end());
    return *this;
  }
  /// A resource with a numbered type, or a named one when `typeName` is given.
  Builder& Resource(unsigned type, unsigned id, const Bytes& data, std::u16string typeName = {}) {
    Builder name;
    if (typeName.empty()) {
      name.Words({0xFFFF, type});
    } else {
      name.Text(typeName);
    }
    name.Words({0xFFFF, id}).Align();
    Dword(static_cast<unsigned>(data.size()));
    Dword(static_cast<unsigned>(8 + name.bytes.size() + 16)).Append(name.bytes);
    return Dword(0).Words({0x1030, 0x0409}).Dword(0).Dword(0).Append(data).Align();
  }
};

/// Numbers of the standard resource types.
constexpr unsigned kMenu = 4, kDialog = 5, kString = 6;

/// A script with nothing in it yet.
inline Builder Script() {
  Builder script;
  script.Dword(0).Dword(32).Words({0xFFFF, 0, 0xFFFF, 0});
  return script.Dword(0).Dword(0).Dword(0).Dword(0);
}
