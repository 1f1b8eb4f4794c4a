#pragma once

// The interpreter list in a store. It is the text "List" of the section "Interpreters" in the form
// of interpreter_text.h; an empty or missing text means the default list.

#include "hollerin/interpreter_entry.h"
#include "ifc/config_data_mgr.h"

namespace HOLLERIN {

/// The shipped interpreters, and behind them the document filters found on the machine.
std::vector<InterpreterEntry> DefaultInterpreters();

/// The list that the store holds, each entry with a key of its own; the default list when it holds
/// none or a damaged one. The store stays as it is; what was wrong is written to the log.
std::vector<InterpreterEntry> ReadInterpreters(INTERNAL_IFC::IConfigDataMgr& store);

/// Whether the store holds a list, damaged or not.
bool HoldsInterpreters(INTERNAL_IFC::IConfigDataMgr& store);

/// Makes the entries the list of the store. A damaged list is not overwritten but kept as the text
/// "Damaged1" of the section, or "Damaged2" and so on when that one is taken; the log names it.
/// Nothing is written when the store gives these entries already, so that one without a list goes
/// on following what is shipped and what the machine has.
void WriteInterpreters(INTERNAL_IFC::IConfigDataMgr& store,
                       const std::vector<InterpreterEntry>& entries);

}  // namespace HOLLERIN
