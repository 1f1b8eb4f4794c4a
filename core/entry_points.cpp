// The exported functions.

#include "core/main_dialog.h"
#include "foundation/entry_frame.h"
#include "foundation/message_dialog.h"
#include "platform/embedded_resources.h"
#include "resources/resource.h"

namespace {

const LibraryModule g_module(EmbeddedResources());

}  // namespace

namespace BRISQUEL {

Status OpenConfigDialog(HWND, const StoreHandle& config, const StoreHandle& master,
                        const StoreHandle& history, const StoreHandle& fourth, int initialPage) {
  using Dialog = Geometry::CGeometryWnd<CConfigurationMain>;
  return RunEntryPoint(UiLibrary::kAttach, config,
                       [&] { return Dialog(config, master, history, fourth, initialPage); });
}

Status ShowMessage(HWND) {
  RunEntryPoint(UiLibrary::kLeave, nullptr,
                [] { return CMessageBox(IDD_MESSAGE_BOX, L"Testing"); });
  return 0;
}

}  // namespace BRISQUEL

const BRISQUEL::EntryPoints* BrisquelEntryPoints() {
  static constexpr BRISQUEL::EntryPoints kEntryPoints = {
      &BRISQUEL::OpenConfigDialog, &BRISQUEL::ShowMessage, &BRISQUEL::OpenClearHistoryDialog,
      &BRISQUEL::OpenEditHistoryDialog, &BRISQUEL::OpenCacheSettings};
  return &kEntryPoints;
}
