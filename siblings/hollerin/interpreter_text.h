#pragma once

// The text that a store keeps as its interpreter list. Any damage is found out by a checksum.
//
//   INTERPRETERS1                             the form and its version
//   I<name><key><extensions><info><type>WXYZ  an entry; W to Z are 0 or 1: enabled, option A,
//                                             document format, option C
//   E<16 hexadecimal>                         the end, with the checksum of all before it
//
// where each text is a length in decimal, ":" and that many characters.

#include <optional>
#include <string>
#include <vector>

#include "hollerin/interpreter_entry.h"

namespace HOLLERIN {

/// How long an entry is in the text.
std::size_t InterpreterLength(const InterpreterView& entry);

/// Makes a text entry by entry.
class InterpreterWriter {
 public:
  /// `length`: that of all entries together.
  explicit InterpreterWriter(std::size_t length);
  void Add(const InterpreterView& entry);
  /// The text; the writer has nothing left.
  std::wstring Finish();

 private:
  std::wstring text_;
};

std::wstring FormatInterpreters(const std::vector<InterpreterView>& entries);

/// The entries in their order, several with one key among them, as parts of the text; nothing when
/// the text is damaged: cut off, or any one character changed, missing or added.
std::optional<std::vector<InterpreterView>> ParseInterpreters(std::wstring_view text);

/// Whether the text is none that is damaged.
bool IsInterpreterText(std::wstring_view text);

}  // namespace HOLLERIN
