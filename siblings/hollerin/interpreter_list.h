#pragma once

// The interpreter list as an object. It is made from the stored text and keeps it, so that loading
// and saving a long list copies no entry by itself.

#include <memory>
#include <optional>
#include <vector>

#include "hollerin/interpreter_entry.h"
#include "ifc/config_interpreter_list.h"

namespace HOLLERIN {

/// The list of a stored text; null when the text is damaged, or when an entry has no key of its
/// own.
std::shared_ptr<INTERNAL_IFC::IConfigInterpreterList> ParseInterpreterList(std::wstring text);

/// The list of these entries; those without a key of their own get one (MakeKeysUnique).
std::shared_ptr<INTERNAL_IFC::IConfigInterpreterList> MakeInterpreterList(
    std::vector<InterpreterEntry> entries);

/// The text to store for what the list, of whatever make, says at the moment; nothing when it fails
/// to tell.
std::optional<std::wstring> ListText(INTERNAL_IFC::IConfigInterpreterList& list);

/// What the list says, entry for entry; nothing when it fails to tell.
std::optional<std::vector<InterpreterEntry>> ListEntries(
    INTERNAL_IFC::IConfigInterpreterList& list);

}  // namespace HOLLERIN
