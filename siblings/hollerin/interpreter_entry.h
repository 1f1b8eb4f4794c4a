#pragma once

// An interpreter as it is stored.

#include <string>
#include <vector>

namespace HOLLERIN {

/// The members are those of INTERNAL_IFC::IConfigInterpreter; every text may be any text.
struct InterpreterEntry {
  std::wstring name;
  std::wstring key;
  std::wstring extensions;
  std::wstring info;
  std::wstring type;
  bool enabled = false;
  bool optionA = false;
  bool document = false;
  bool optionC = false;

  bool operator==(const InterpreterEntry&) const = default;
};

/// Gives every entry a key of its own: the first entry with a key keeps it, each further one has
/// "~2", "~3" and so on put behind, and so has an entry without a key behind the word
/// "interpreter". The same entries always get the same keys. Returns a sentence for every change.
std::vector<std::wstring> MakeKeysUnique(std::vector<InterpreterEntry>& entries);

}  // namespace HOLLERIN
