#pragma once

// The functions that the library of lists and tools exports. Out-parameters are filled on success
// only; statuses are HRESULTs, negative on failure.

#include <memory>

#include "ifc/config_data_mgr.h"
#include "ifc/external_editor_mgr.h"
#include "ifc/load_combo_reg.h"

namespace TOLLIVER {

/// A provider of the histories that `store` keeps, one in each section: its entries are the texts
/// under the keys "0", "1" and so on, newest first. The provider shares the store and works on it
/// at once; what the store raises passes through. E_INVALIDARG without a store.
///
/// An entry is a text of one line: carriage returns are dropped, then empty entries, then those
/// that stand further up in the list already, then what exceeds the maximum given to SelectList.
/// That holds for writing and for reading, so that a damaged section gives what it still has:
/// missing keys are passed over (up to a thousand in a row) and values of other types are read as
/// text. Until a list is selected its operations answer E_FAIL; an empty name or a negative maximum
/// is E_INVALIDARG and leaves the selection as it was.
HRESULT CreateLoadComboReg(const std::shared_ptr<INTERNAL_IFC::IConfigDataMgr>& store,
                           std::shared_ptr<INTERNAL_IFC::ILoadComboReg>* provider);

/// A manager of the external editors that are on the machine when it is made. The default among
/// them is kept in the store, in section "Editor" under the key "DefaultExternal", as the name of
/// its desktop entry or of its program; what the store raises passes through. Without a store
/// nothing is remembered.
HRESULT CreateExternalEditorMgr(const std::shared_ptr<INTERNAL_IFC::IConfigDataMgr>& store,
                                std::shared_ptr<INTERNAL_IFC::IExternalEditorMgr>* manager);

}  // namespace TOLLIVER
