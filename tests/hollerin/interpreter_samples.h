#pragma once

#include "hollerin/interpreter_entry.h"
#include "hollerin/sample_values.h"

/// Entries whose every text is nasty in turn, with every combination of flags.
inline std::vector<HOLLERIN::InterpreterEntry> NastyEntries() {
  std::vector<HOLLERIN::InterpreterEntry> entries;
  const std::vector<std::wstring> texts = NastyTexts();
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const auto text = [&](std::size_t k) { return texts[(i + k) % texts.size()]; };
    entries.push_back({text(0), std::to_wstring(i) + text(1), text(2), text(3), text(4),
                       (i & 1) != 0, (i & 2) != 0, (i & 4) != 0, (i & 8) != 0});
  }
  return entries;
}
