#pragma once

// The application's log.

#include <cstdint>
#include <string>

namespace INTERNAL_IFC {

/// What is known of a failure.
struct ErrorRecord {
  std::int32_t status = 0;        ///< HRESULT, negative for a failure.
  std::wstring task;              ///< What was being done, in a few English words.
  std::uint32_t systemError = 0;  ///< The thread's last system error at the time.
  bool detail = false;            ///< The task is a whole message of its own.
  bool valid = false;
  std::int32_t line = -1;  ///< Source line of the failure; negative when unknown.
};

class ILogMgr {
 public:
  virtual ~ILogMgr() = default;
  virtual void LogLine(const std::wstring& text) = 0;
  virtual void LogError(const ErrorRecord& record, const std::wstring& text) = 0;
};

}  // namespace INTERNAL_IFC
