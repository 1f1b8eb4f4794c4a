#pragma once

// Choosing several folders.

#include <memory>

#include "ifc/load_combo_reg.h"
#include "ifc/location_list.h"
#include "platform/wnd.h"

namespace PANTEROW {

/// Lets the user add folders to the list, remove and reorder them, and say of each whether the
/// folders below it count. `history` offers earlier folders and may be null; it has its list
/// selected. The dialog is modal to `owner`, or to the active window where that is null. Returns
/// the list, now as the user wants it; null, with the list as it was, when the user cancelled or
/// there is no list.
std::shared_ptr<INTERNAL_IFC::ILocationList> OpenMultiFolderDialog(
    const std::shared_ptr<INTERNAL_IFC::ILocationList>& list,
    const std::shared_ptr<INTERNAL_IFC::ILoadComboReg>& history, CWnd* owner);

}  // namespace PANTEROW
