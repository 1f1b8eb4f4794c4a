#pragma once

// The functions that the configuration-store library exports. Out-parameters are filled on success
// only; statuses are HRESULTs, negative on failure.

#include <memory>
#include <string>

#include "ifc/config_data_mgr.h"
#include "ifc/config_interpreter_list.h"
#include "ifc/filter_mgr.h"
#include "ifc/global_mgr.h"
#include "ifc/interpreter_list_mgr.h"
#include "ifc/language_mgr.h"
#include "ifc/ocr_lang_map.h"
#include "ifc/search_filter_list.h"
#include "platform/types.h"

namespace HOLLERIN {

using StoreHandle = std::shared_ptr<INTERNAL_IFC::IConfigDataMgr>;

/// The process-wide global manager; also hands out the language manager, which stays empty when no
/// language could be loaded.
std::shared_ptr<INTERNAL_IFC::IGlobalMgr> GetGlobalMgr(
    std::shared_ptr<RES::ILanguageMgr>* language);

/// An empty store without a file.
HRESULT CreateBlankConfigDataMgr(StoreHandle* store);
/// The shipped default configuration.
HRESULT LoadMainDefaultConfiguration(StoreHandle* store);
/// The shipped default master configuration.
HRESULT CreateDefaultMasterConfiguration(StoreHandle* store, bool portable);
/// The application's master configuration.
HRESULT GetGlobalMasterConfiguration(StoreHandle* store);

/// Nonzero when the application runs as a portable installation.
int IsPortableInstall();
/// The application folder, ending in a separator.
HRESULT GetAppPath(std::wstring* folder);
/// The folder of the language files, ending in a separator.
HRESULT GetLangFileLocation(std::wstring* folder);

/// Replaces every placeholder text ("{n}") of the dialog's controls, and its caption where the
/// language has one for it. S_OK without a language manager; E_FAIL when the window is gone.
HRESULT TranslateDialog(int dialog, HWND window);
HRESULT TranslateMenu(int menu, HMENU handle);

HRESULT CreateConfigInterpreterListMgr(
    std::shared_ptr<INTERNAL_IFC::IConfigInterpreterListMgr>* manager);

using InterpreterListHandle = std::shared_ptr<INTERNAL_IFC::IConfigInterpreterList>;

/// The interpreter list that the store holds, as a new object each time. A store that holds none,
/// or a damaged one, has the default list: the shipped interpreters and the document filters of the
/// machine. The store stays as it is. E_FAIL without a store.
HRESULT LoadCurrentConfigInterpreterList(const StoreHandle& store, InterpreterListHandle* list);
/// Writes the list into the store; a damaged one that is there is put aside, not overwritten. A
/// store that gives this list already stays as it is. With `replace` false a list that the store
/// holds already stays, and the answer is S_FALSE. E_FAIL without a store or a list.
HRESULT SaveConfigInterpreterList(const StoreHandle& store, const InterpreterListHandle& list,
                                  bool replace);

/// The document filters of the machine. The store may be empty: which filters there are does not
/// depend on it.
HRESULT CreateFilterMgr(std::shared_ptr<INTERNAL_IFC::IFilterMgr>* manager,
                        const StoreHandle& store);

/// The languages that the recognition engine knows, with those that it can use at the moment of the
/// call.
HRESULT LoadOCRLangMap(std::shared_ptr<INTERNAL_IFC::IOCRLangMap>* map);

/// The persistent search filters that the store keeps (search_filter_text.h); none without a store.
/// S_FALSE when the stored text was damaged: the list is empty, the text lies under the key
/// "List.damaged-<n>" of its section, and the log says so. What the store raises passes through.
HRESULT LoadSearchFilterList(const StoreHandle& store,
                             std::shared_ptr<INTERNAL_IFC::ISearchFilterList>* list);
/// Writes the filters into the store; S_FALSE without one. A damaged text that stands there is put
/// aside as by LoadSearchFilterList.
HRESULT SaveSearchFilterList(const StoreHandle& store,
                             const std::shared_ptr<INTERNAL_IFC::ISearchFilterList>& list);
/// A filter of file names, on, without a name and a pattern.
HRESULT CreateBlankSearchFilter(std::shared_ptr<INTERNAL_IFC::ISearchFilter>* filter);

}  // namespace HOLLERIN
