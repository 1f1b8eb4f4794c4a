#pragma once

// The external editors of this machine.

#include <string>
#include <vector>

struct FoundEditor {
  std::wstring id;    ///< Stays the same from one run to the next; unique.
  std::wstring name;  ///< As the user knows it; unique.
};

/// The text editors among the desktop's applications whose programs are there, then the known
/// programs of the search path ($PATH) that none of those starts. An application file that a better
/// data folder has too counts there only, also when it is hidden there.
std::vector<FoundEditor> FindEditors();
