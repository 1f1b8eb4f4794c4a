#pragma once

// A cursor over a piece of a compiled resource script. Every read is checked; one that would leave
// the piece throws a ResourceError with the offset in the script.

#include <cstddef>
#include <span>
#include <string>

#include "platform/resource_script.h"

/// A name of a type, class or resource: a text, or a number.
struct ResourceName {
  bool isNumber = false;
  WORD number = 0;
  std::wstring text;
};

class ResourceReader {
 public:
  /// `start` is the offset of `bytes` in the script, a multiple of 4; only for error messages.
  ResourceReader(std::span<const std::byte> bytes, std::size_t start)
      : bytes_(bytes), start_(start) {}

  std::size_t Offset() const { return start_ + position_; }
  std::size_t Left() const { return bytes_.size() - position_; }

  // `what` names the field in the error.
  WORD Word(const char* what);
  DWORD Dword(const char* what);
  int Short(const char* what) { return static_cast<std::int16_t>(Word(what)); }

  /// Text up to its terminating zero, which is consumed.
  std::wstring Text(const char* what);
  /// Text of that many 16-bit units.
  std::wstring Text(std::size_t units, const char* what);
  /// A text, or the mark 0xFFFF with a number.
  ResourceName Name(const char* what);
  std::span<const std::byte> Bytes(std::size_t count, const char* what);

  /// Moves to the next multiple of 4; stays at the end where the padding is missing there.
  void Align();

  [[noreturn]] void Refuse(std::string reason) const;

 private:
  std::span<const std::byte> bytes_;
  std::size_t start_;
  std::size_t position_ = 0;
};

// The readers of the single kinds of resources.
DialogTemplate ReadDialogTemplate(ResourceReader reader);
std::vector<MenuItemTemplate> ReadMenuTemplate(ResourceReader reader);
/// The text at `index` (0 to 15) of a block of the string table.
std::wstring ReadStringBlock(ResourceReader reader, UINT index);
