#include "foundation/exception.h"

void ThrowHr(HRESULT status, const std::wstring& task, std::int32_t line) {
  if (!FAILED(status)) return;
  throw CCP_Exception({.status = status,
                       .task = task,
                       .systemError = GetLastError(),
                       .detail = false,
                       .valid = true,
                       .line = line});
}
