// The exported functions of the history dialogs.

#include "dialogs/clear_history_dlg.h"
#include "dialogs/edit_history_dlg.h"
#include "foundation/entry_frame.h"
#include "quimbly/quimbly.h"

namespace {

/// Entries that a history keeps where the configuration says nothing sensible; never none, since
/// that would empty the user's histories.
constexpr std::int32_t kDefaultMaximum = 25;

std::int32_t ReadMaximum(const BRISQUEL::StoreHandle& config) {
  if (config == nullptr) return kDefaultMaximum;
  const std::int32_t maximum = config->ReadInt(L"Options", L"MaxDropDownHistory", kDefaultMaximum);
  return maximum >= 0 ? maximum : kDefaultMaximum;
}

}  // namespace

namespace BRISQUEL {

Status OpenClearHistoryDialog(HWND, CClearHistorySettings* settings, const StoreHandle& history) {
  CClearHistorySettings unkept;
  return RunEntryPoint(UiLibrary::kLeave, nullptr, [&] {
    return CClearHistoryDlg(settings != nullptr ? *settings : unkept, history);
  });
}

Status OpenEditHistoryDialog(HWND, const StoreHandle& history, const StoreHandle& config) {
  using Dialog = Geometry::CGeometryWnd<CEditHistoryDlg>;
  return RunEntryPoint(UiLibrary::kAttach, history, [&] {
    // The dialog reports a missing provider.
    std::shared_ptr<INTERNAL_IFC::ILoadComboReg> lists;
    TOLLIVER::CreateLoadComboReg(history, &lists);
    return Dialog(lists, ReadMaximum(config));
  });
}

}  // namespace BRISQUEL
