#pragma once

// The interpreter list as an object.

#include <memory>
#include <vector>

#include "hollerin/interpreter_entry.h"
#include "ifc/config_interpreter_list.h"

namespace HOLLERIN {

/// The entries in their order. Where several have one key, FindByKey knows the first.
std::shared_ptr<INTERNAL_IFC::IConfigInterpreterList> MakeInterpreterList(
    std::vector<InterpreterEntry> entries);

/// What the entries of any list say at the moment; a status below 0 when the list fails.
HRESULT CollectEntries(INTERNAL_IFC::IConfigInterpreterList& list,
                       std::vector<InterpreterEntry>& entries);

}  // namespace HOLLERIN
