#pragma once

// An interpreter as it is stored.

#include <string>
#include <string_view>
#include <vector>

namespace HOLLERIN {

/// The members are those of INTERNAL_IFC::IConfigInterpreter; every text may be any text.
template <class Text>
struct BasicInterpreter {
  Text name{};
  Text key{};
  Text extensions{};
  Text info{};
  Text type{};
  bool enabled = false;
  bool optionA = false;
  bool document = false;
  bool optionC = false;

  bool operator==(const BasicInterpreter&) const = default;
};

using InterpreterEntry = BasicInterpreter<std::wstring>;
/// An entry whose texts belong to somebody else.
using InterpreterView = BasicInterpreter<std::wstring_view>;

std::vector<InterpreterEntry> ToEntries(const std::vector<InterpreterView>& views);
std::vector<InterpreterView> ToViews(const std::vector<InterpreterEntry>& entries);

/// Gives every entry a key of its own: the first entry with a key keeps it, each further one has
/// "~2", "~3" and so on put behind, and so has an entry without a key behind the word
/// "interpreter". The same entries always get the same keys. Returns a sentence for every change.
std::vector<std::wstring> MakeKeysUnique(std::vector<InterpreterEntry>& entries);

}  // namespace HOLLERIN
