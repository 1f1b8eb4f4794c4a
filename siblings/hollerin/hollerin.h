#pragma once

// The functions that the configuration-store library exports. Out-parameters are filled on success
// only; statuses are HRESULTs, negative on failure.

#include <memory>
#include <string>

#include "ifc/config_data_mgr.h"
#include "ifc/global_mgr.h"
#include "ifc/interpreter_list_mgr.h"
#include "ifc/language_mgr.h"
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
