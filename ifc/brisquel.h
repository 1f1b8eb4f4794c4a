#pragma once

// The functions that libbrisquel exports. Each opens one modal dialog over stores that the caller
// owns, waits until the user closes it, and says whether the user confirmed.
//
// All of them are called on the user-interface thread of a process with a running GUI toolkit. An
// exception that a store raises outside the dialog's own error boundaries passes to the caller.

#include <memory>
#include <vector>

#include "ifc/config_data_mgr.h"
#include "ifc/load_combo_reg.h"

class CClearHistorySettings;

#define BRISQUEL_API __attribute__((visibility("default")))

namespace BRISQUEL {

using StoreHandle = std::shared_ptr<INTERNAL_IFC::IConfigDataMgr>;
using HistoryHandle = std::shared_ptr<INTERNAL_IFC::ILoadComboReg>;

/// 0 when the user confirmed, 1 otherwise.
using Status = std::int32_t;

/// Opens the main configuration dialog with the page `initialPage` (4: the General group).
/// `parent` is accepted and not used; the owner is the caller's active window. After status 0
/// `config` holds the user's choices; after 1 it is as it was. Restoring the defaults inside the
/// dialog replaces `master` and empties `fourth` at once, whatever the user presses in the end.
BRISQUEL_API Status OpenConfigDialog(HWND parent, const StoreHandle& config,
                                     const StoreHandle& master, const StoreHandle& history,
                                     const StoreHandle& fourth, int initialPage);

/// Shows a message with its text ready to copy; always 0.
BRISQUEL_API Status ShowMessage(HWND parent);

/// Lets the user clear histories of `history` at once. The choice is kept in `settings` and in the
/// store that these were made from; without settings it is not kept. After status 0 the histories
/// are gone, and saved unless that failed, of which the user was told; after 1 nothing has changed.
BRISQUEL_API Status OpenClearHistoryDialog(HWND parent, CClearHistorySettings* settings,
                                           const StoreHandle& history);

/// Lets the user edit the histories of `history` as text, one entry a line. Each keeps at most as
/// many entries as "MaxDropDownHistory" in the section "Options" of `config` says. After status 0
/// `history` holds the user's entries, not yet saved; after 1 it is as it was.
BRISQUEL_API Status OpenEditHistoryDialog(HWND parent, const StoreHandle& history,
                                          const StoreHandle& config);

/// Lets the user choose the language. After status 0 `config` names the file of the language
/// chosen, for the next start of the application; after 1 it is as it was.
BRISQUEL_API Status OpenLanguageDialog(const StoreHandle& config);

/// Lets the user choose the formats that searches open as documents. After status 0 `store` holds
/// the choices and, in its interpreter list, the formats that are enabled; after 1 it is as it was.
/// What keeps the dialog from opening is shown to the user.
BRISQUEL_API Status OpenDocumentSettings(const StoreHandle& store);

/// As OpenDocumentSettings, for compressed files and archives.
BRISQUEL_API Status OpenArchiveSettings(const StoreHandle& store);

/// As OpenDocumentSettings, for the recognition of text in pictures; the interpreter list of
/// `store` keeps its flags.
BRISQUEL_API Status OpenOCRSettings(const StoreHandle& store);

/// Lets the user look after the text cache and set its folder, size limit and expiry. After status
/// 0 `store` holds the limits, and the global master configuration the folder, saved; after 1
/// `store` is as it was. What the user compacted or deleted stays so.
BRISQUEL_API Status OpenCacheSettings(const StoreHandle& store);

/// Lets the user maintain the persistent search filters. `history` offers earlier folders and may
/// be empty; the vector is not used. With `active` the filters are shown as active, whatever the
/// store says. After status 0 `store` holds the filters and whether they are active; after 1 it is
/// as it was.
BRISQUEL_API Status OpenSearchFilterList(const StoreHandle& store, const HistoryHandle& history,
                                         std::vector<CString>* unused, bool active);

/// The exported functions for a caller that loads the library at run time.
struct EntryPoints {
  Status (*OpenConfigDialog)(HWND, const StoreHandle&, const StoreHandle&, const StoreHandle&,
                             const StoreHandle&, int);
  Status (*ShowMessage)(HWND);
  Status (*OpenClearHistoryDialog)(HWND, CClearHistorySettings*, const StoreHandle&);
  Status (*OpenEditHistoryDialog)(HWND, const StoreHandle&, const StoreHandle&);
  Status (*OpenLanguageDialog)(const StoreHandle&);
  Status (*OpenDocumentSettings)(const StoreHandle&);
  Status (*OpenArchiveSettings)(const StoreHandle&);
  Status (*OpenOCRSettings)(const StoreHandle&);
  Status (*OpenCacheSettings)(const StoreHandle&);
  Status (*OpenSearchFilterList)(const StoreHandle&, const HistoryHandle&, std::vector<CString>*,
                                 bool);
};

}  // namespace BRISQUEL

/// The one symbol to look up by name. The table lives as long as the library is loaded.
extern "C" BRISQUEL_API const BRISQUEL::EntryPoints* BrisquelEntryPoints();
