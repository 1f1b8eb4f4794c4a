#pragma once

// The text that a store keeps as its interpreter list. Any damage is found out by a checksum.
//
//   INTERPRETERS1                             the form and its version
//   I<name><key><extensions><info><type>WXYZ  an entry; W to Z are 0 or 1: enabled, option A,
//                                             document format, option C
//   E<16 hexadecimal>                         the end, with the checksum of all before it
//
// where each text is a length in decimal, ":" and that many characters.

#include <functional>
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

/// Shows the entries in their order, several with one key among them, as parts of the text. False
/// when the text is damaged: cut off, or any one character changed, missing or added; whatever was
/// shown then is worth nothing.
bool VisitInterpreters(std::wstring_view text,
                       const std::function<void(const InterpreterView&)>& visit);

/// All entries; nothing when the text is damaged.
std::optional<std::vector<InterpreterView>> ParseInterpreters(std::wstring_view text);

/// A good guess at the number of entries in a text of that length.
constexpr std::size_t UsualCount(std::size_t length) {
  constexpr std::size_t kUsualLength = 128;
  return length / kUsualLength;
}

}  // namespace HOLLERIN
