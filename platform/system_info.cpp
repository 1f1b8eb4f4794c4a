#include "platform/system_info.h"

#include "platform/machine.h"

void GetSystemInfo(SYSTEM_INFO* info) {
  info->dwNumberOfProcessors = static_cast<DWORD>(GetMachine().Processors());
}
