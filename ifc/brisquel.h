#pragma once

// The functions that libbrisquel exports. Each opens one modal dialog over stores that the caller
// owns, waits until the user closes it, and says whether the user confirmed.
//
// All of them are called on the user-interface thread of a process with a running GUI toolkit. An
// exception that a store raises outside the dialog's own error boundaries passes to the caller.

#include <memory>

#include "ifc/config_data_mgr.h"

#define BRISQUEL_API __attribute__((visibility("default")))

namespace BRISQUEL {

using StoreHandle = std::shared_ptr<INTERNAL_IFC::IConfigDataMgr>;

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

/// The exported functions for a caller that loads the library at run time.
struct EntryPoints {
  Status (*OpenConfigDialog)(HWND, const StoreHandle&, const StoreHandle&, const StoreHandle&,
                             const StoreHandle&, int);
  Status (*ShowMessage)(HWND);
};

}  // namespace BRISQUEL

/// The one symbol to look up by name. The table lives as long as the library is loaded.
extern "C" BRISQUEL_API const BRISQUEL::EntryPoints* BrisquelEntryPoints();
