#pragma once

// What the application keeps for the whole process.

#include <memory>

#include "ifc/log_mgr.h"

namespace INTERNAL_IFC {

class IGlobalMgr {
 public:
  virtual ~IGlobalMgr() = default;
  /// The application's log; empty when it has none.
  virtual std::shared_ptr<ILogMgr> GetLogMgr() = 0;
};

}  // namespace INTERNAL_IFC
