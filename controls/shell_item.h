#pragma once

// A file or folder that exists, known by what it is and not by how its path is written.

#include <sys/types.h>

#include <string>
#include <string_view>

#include "platform/types.h"

struct ShellItem {
  std::wstring nativePath;  ///< Where it lies on this system.
  dev_t device = 0;
  ino_t node = 0;
};

/// Finds the item that a path of either style names, following links. E_FAIL, with the reason as
/// the last system error, when there is none; `item` is left alone then.
HRESULT ParseDisplayName(std::wstring_view path, ShellItem& item);

/// 0 when both are the same file or folder, else 1 or -1: an order that has no meaning to a person.
int CompareItems(const ShellItem& a, const ShellItem& b);
