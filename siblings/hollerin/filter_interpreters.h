#pragma once

// The interpreters that stand for the document filters of the machine.

#include <string>
#include <vector>

#include "hollerin/interpreter_entry.h"
#include "platform/machine.h"

namespace HOLLERIN {

/// One interpreter of the type "ifilter" for each name among the filters, with all extensions of
/// that name, in the order of the filters. Its key begins with "ifilter:".
std::vector<InterpreterEntry> FilterInterpreters(const std::vector<DocumentFilter>& filters);

/// Brings the interpreters of document filters among the entries in line with the filters: those
/// without a filter go, those that stay keep their flags and options, new ones come behind all
/// others. Entries whose key does not begin with "ifilter:" stay as they are, whatever their type.
/// Whether anything has changed.
bool ResyncFilterInterpreters(std::vector<InterpreterEntry>& entries,
                              const std::vector<DocumentFilter>& filters);

/// A text that tells one set of filters from another; empty for none.
std::wstring FilterRecord(const std::vector<DocumentFilter>& filters);

}  // namespace HOLLERIN
