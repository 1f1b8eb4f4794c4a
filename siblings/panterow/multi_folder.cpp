#include "panterow/multi_folder.h"

#include "panterow/module_state.h"
#include "panterow/multi_folder_dialog.h"

namespace PANTEROW {

std::shared_ptr<INTERNAL_IFC::ILocationList> OpenMultiFolderDialog(
    const std::shared_ptr<INTERNAL_IFC::ILocationList>& list,
    const std::shared_ptr<INTERNAL_IFC::ILoadComboReg>& history, CWnd* owner) {
  if (list == nullptr) return nullptr;
  const AFX_MAINTAIN_STATE2 state(ModuleState());
  CMultiFolderDlg::Locations locations;
  INTERNAL_IFC::Location location;
  for (std::int32_t index = 0; list->GetAt(index, location); ++index) {
    locations.push_back(location);
  }
  CMultiFolderDlg dialog(std::move(locations), history, owner);
  if (dialog.DoModal() != IDOK) return nullptr;
  list->Clear();
  for (const auto& chosen : dialog.GetLocations()) list->Add(chosen);
  return list;
}

}  // namespace PANTEROW
