#pragma once

// What would have happened outside of the program while it was driven.

#include <string>
#include <vector>

struct Outside {
  std::vector<std::wstring> opened;  ///< Files and folders for the desktop's programs.
  std::vector<std::wstring> played;  ///< Sound files, as they were named.
};
