#pragma once

// What the library asks of the computer itself.

#include "platform/types.h"

struct SYSTEM_INFO {
  /// The processors that this process may use; at least 1.
  DWORD dwNumberOfProcessors = 1;
};

void GetSystemInfo(SYSTEM_INFO* info);
