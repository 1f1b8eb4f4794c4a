#pragma once

// Maintenance of the interpreter list that a store holds.

#include <memory>

#include "ifc/config_data_mgr.h"

namespace INTERNAL_IFC {

class IConfigInterpreterListMgr {
 public:
  virtual ~IConfigInterpreterListMgr() = default;
  /// Brings the stored list in line with the document filters found on the machine; with `force`
  /// also when the machine has not changed since the last time.
  virtual HRESULT ResyncIFilters(const std::shared_ptr<IConfigDataMgr>& store, bool force) = 0;
};

}  // namespace INTERNAL_IFC
