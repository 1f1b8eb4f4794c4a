#pragma once

// Maintenance of the interpreter list that a store holds.

#include <memory>

#include "ifc/config_data_mgr.h"
#include "ifc/config_interpreter_list.h"

namespace INTERNAL_IFC {

/// The place of every operation is fixed; those that nobody calls are reserved and answer
/// E_NOTIMPL.
class IConfigInterpreterListMgr {
 public:
  virtual ~IConfigInterpreterListMgr() = default;  // 0
  /// Brings the stored list in line with the document filters found on the machine; with `force`
  /// also when the machine has not changed since the last time. Flags and options of the filters
  /// that stay are kept. E_FAIL without a store.
  virtual HRESULT ResyncIFilters(const std::shared_ptr<IConfigDataMgr>& store,
                                 bool force) = 0;    // 1
  virtual HRESULT Reserved2() { return E_NOTIMPL; }  // 2
  virtual HRESULT Reserved3() { return E_NOTIMPL; }  // 3
  /// Fills `list` with the shipped list and the document filters found on the machine; the store
  /// stays as it is. E_FAIL without a store.
  virtual HRESULT LoadDefaultList(const std::shared_ptr<IConfigDataMgr>& store,
                                  std::shared_ptr<IConfigInterpreterList>& list) = 0;  // 4
};

}  // namespace INTERNAL_IFC
