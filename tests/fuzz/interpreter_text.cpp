// Any text may stand in a store as its interpreter list. What is accepted must come back the same,
// and a cut must never be accepted.

#include "hollerin/interpreter_text.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <set>

using namespace HOLLERIN;

namespace {

void CheckForms(const std::vector<InterpreterEntry>& entries) {
  const std::wstring text = FormatInterpreters(ToViews(entries));
  if (ParseInterpreters(text) != ToViews(entries)) std::abort();
  for (const std::size_t length : {text.size() - 1, text.size() / 2, std::size_t{14}}) {
    if (ParseInterpreters(std::wstring_view(text).substr(0, length))) std::abort();
  }
  std::vector<InterpreterEntry> unique = entries;
  MakeKeysUnique(unique);
  std::set<std::wstring> keys;
  for (const InterpreterEntry& entry : unique) {
    if (entry.key.empty() || !keys.insert(entry.key).second) std::abort();
  }
}

/// The bytes as characters: each as one, or four together, which gives any character.
std::wstring Narrow(std::string_view bytes) { return {bytes.begin(), bytes.end()}; }
std::wstring Wide(std::string_view bytes) {
  std::wstring text(bytes.size() / sizeof(wchar_t), L'\0');
  std::memcpy(text.data(), bytes.data(), text.size() * sizeof(wchar_t));
  return text;
}

/// Entries made of the input: each line is a text, the last bits of its first byte the flags.
std::vector<InterpreterEntry> EntriesFrom(std::string_view bytes) {
  std::vector<InterpreterEntry> entries;
  std::wstring InterpreterEntry::*const kTexts[] = {
      &InterpreterEntry::key, &InterpreterEntry::name, &InterpreterEntry::extensions,
      &InterpreterEntry::info, &InterpreterEntry::type};
  for (std::size_t n = 0; !bytes.empty(); ++n) {
    const std::string_view line = bytes.substr(0, bytes.find('\n'));
    bytes.remove_prefix(std::min(bytes.size(), line.size() + 1));
    if (n % std::size(kTexts) == 0) entries.emplace_back();
    InterpreterEntry& entry = entries.back();
    entry.*kTexts[n % std::size(kTexts)] = n % 2 == 0 ? Narrow(line) : Wide(line);
    const unsigned flags = line.empty() ? 0 : static_cast<unsigned char>(line[0]);
    entry.enabled = (flags & 1U) != 0;
    entry.optionA = (flags & 2U) != 0;
    entry.document = (flags & 4U) != 0;
    entry.optionC = (flags & 8U) != 0;
  }
  return entries;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  for (const std::wstring& text : {Narrow(bytes), Wide(bytes)}) {
    if (const auto entries = ParseInterpreters(text)) CheckForms(ToEntries(*entries));
  }
  CheckForms(EntriesFrom(bytes));
  return 0;
}
