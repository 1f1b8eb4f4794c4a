#pragma once

// What a desktop entry says of a text editor.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/key_file.h"

struct EditorEntry {
  std::wstring name;    ///< In the user's language where the entry has it. Never empty.
  std::string program;  ///< What starts it: a path, or a name to be looked for. Never empty.
  std::string probe;    ///< A program that must be there as well; empty for none.
};

/// The ways in which an entry may name a locale ("de_AT.UTF-8@euro"), best first: "de_AT@euro",
/// "de_AT", "de@euro", "de".
std::vector<std::string> LocaleForms(std::string_view locale);

/// The editor of a desktop entry; nothing when the entry is damaged, is no application that is
/// shown, or is not in the category of text editors.
std::optional<EditorEntry> ReadEditorEntry(const KeyFile& file,
                                           const std::vector<std::string>& locales);
