#pragma once

// The interpreters that the application ships with.

#include <vector>

#include "hollerin/interpreter_entry.h"

namespace HOLLERIN {

/// Every entry has a key of its own, and no extension belongs to two entries.
std::vector<InterpreterEntry> ShippedInterpreters();

}  // namespace HOLLERIN
