#pragma once

// The interpreter list as an object. It is made from the stored text and keeps it, so that loading
// and saving a long list copies no entry by itself.

#include <memory>
#include <optional>
#include <vector>

#include "hollerin/interpreter_entry.h"
#include "ifc/config_interpreter_list.h"

namespace HOLLERIN {

/// The list of a stored text. Entries without a key of their own get one (MakeKeysUnique), and
/// `changes` a sentence for each. Null when the text is damaged.
std::shared_ptr<INTERNAL_IFC::IConfigInterpreterList> ParseInterpreterList(
    std::wstring text, std::vector<std::wstring>& changes);

/// The list of these entries; as ParseInterpreterList.
std::shared_ptr<INTERNAL_IFC::IConfigInterpreterList> MakeInterpreterList(
    const std::vector<InterpreterEntry>& entries);

/// The text to store for what the list, of whatever make, says at the moment; nothing when it fails
/// to tell.
std::optional<std::wstring> ListText(INTERNAL_IFC::IConfigInterpreterList& list);

/// What the list says, entry for entry; nothing when it fails to tell.
std::optional<std::vector<InterpreterEntry>> ListEntries(
    INTERNAL_IFC::IConfigInterpreterList& list);

}  // namespace HOLLERIN
