#pragma once

// The functions that the library of lists and tools exports. Out-parameters are filled on success
// only; statuses are HRESULTs, negative on failure.

#include <memory>

#include "ifc/config_data_mgr.h"
#include "ifc/external_editor_mgr.h"
#include "ifc/file_cache_mgr.h"
#include "ifc/load_combo_reg.h"
#include "ifc/location_list.h"
#include "ifc/work_progress.h"

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

/// An empty list of folders. `withoutSubfolders` says what a folder means whose text carries no
/// mark (location_text.h describes the text): that the folders below it are left out.
HRESULT CreateLocationList(std::shared_ptr<INTERNAL_IFC::ILocationList>* list,
                           bool withoutSubfolders);

}  // namespace TOLLIVER

namespace STOVEN {

/// The manager of the text cache in the folder that the global master configuration names
/// ("CacheFolder" in "FOLDERS", an empty text standing for "%CACHE%/quarrow"), as it is now: a
/// folder chosen later is another cache. Where the folder cannot be made out the manager has no
/// figures of a database and refuses to change one. `status` may be null; it is asked during long
/// work and must outlive the manager. A store is not needed: its size limit and its expiry policy
/// are for those who fill the cache.
HRESULT CreateCacheMgr(const std::shared_ptr<INTERNAL_IFC::IConfigDataMgr>& store,
                       INTERNAL_IFC::IRunningStatus* status,
                       std::shared_ptr<INTERNAL_IFC::IFileCacheMgr>* manager);

}  // namespace STOVEN
