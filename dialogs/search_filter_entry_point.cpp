// The exported function of the persistent search filters.

#include "dialogs/search_filter_list_dlg.h"
#include "foundation/entry_frame.h"

namespace BRISQUEL {

Status OpenSearchFilterList(const StoreHandle& store, const HistoryHandle& history,
                            std::vector<CString>* /*unused*/, bool active) {
  using Dialog = Geometry::CGeometryWnd<CSearchFilterListDlg>;
  return RunEntryPoint(UiLibrary::kAttach, store, [&] { return Dialog(store, history, active); });
}

}  // namespace BRISQUEL
