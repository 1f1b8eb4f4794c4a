#pragma once

// The work behind the list of document filters.

#include "core/config_dialog.h"
#include "ifc/filter_mgr.h"
#include "ifc/work_progress.h"
#include "platform/list_ctrl.h"

/// Brings the interpreter list of the store in line with the machine, then appends a row for every
/// file type of the user's and one for every extension that has a filter: extension, name and
/// location of the filter. Ends early when the user cancels, with the rows so far. Raises
/// CCP_Exception; the rows so far stay as well. Always 0.
long FillFilterList(CListCtrl& list, INTERNAL_IFC::IFilterMgr& filters, const StoreHandle& store,
                    INTERNAL_IFC::IWorkProgress& progress);
