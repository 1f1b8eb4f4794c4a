#pragma once

// The library's own exception, and how a failing status becomes one.

#include <string>
#include <utility>

#include "ifc/log_mgr.h"
#include "platform/types.h"

using INTERNAL_IFC::ErrorRecord;

/// The status of a failure of which nothing is known.
constexpr HRESULT kUnknownFailure = static_cast<HRESULT>(0x80040605U);

/// Thrown and caught by value.
class CCP_Exception {
 public:
  explicit CCP_Exception(ErrorRecord record) : record_(std::move(record)) {}
  const ErrorRecord& Record() const { return record_; }

 private:
  ErrorRecord record_;
};

/// Raises CCP_Exception with the status, the task ("Saving history changes") and the thread's last
/// system error when the status is negative; otherwise returns. The line is the caller's own unless
/// one is given.
void ThrowHr(HRESULT status, const std::wstring& task, std::int32_t line = __builtin_LINE());
