#pragma once

// The question of a long job whether it is still wanted.

namespace INTERNAL_IFC {

class IRunningStatus {
 public:
  virtual ~IRunningStatus() = default;  // 0
  /// Whether the job shall stop as soon as it can.
  virtual bool IsCancelled() = 0;  // 1
};

}  // namespace INTERNAL_IFC
