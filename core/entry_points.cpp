// The exported functions.

#include <algorithm>

#include "core/main_dialog.h"
#include "core/page_tree.h"
#include "core/single_config_dialog.h"
#include "foundation/entry_frame.h"
#include "foundation/message_dialog.h"
#include "pages/general/localization_page.h"
#include "platform/embedded_resources.h"
#include "resources/resource.h"

namespace {

const LibraryModule g_module(EmbeddedResources());

/// The language page alone.
class CLanguageDialog : public CSingleConfigDialog {
 public:
  explicit CLanguageDialog(const BRISQUEL::StoreHandle& config)
      : CSingleConfigDialog(config, MakeEntry(), nullptr) {
    SetPageHook([](const std::shared_ptr<CDialog>& page) {
      if (auto* language = dynamic_cast<CConfigEntryLocalizationDlg*>(page.get())) {
        language->HideNote();
      }
    });
  }

 private:
  /// The node that the page has in the tree.
  static std::shared_ptr<INTERNAL_IFC::IConfigEntry> MakeEntry() {
    const auto rows = PageTreePages();
    const UINT page = CConfigEntryLocalizationDlg::IDD;
    const auto row = std::ranges::find(rows, page, &PageRow::templateId);
    return row->makeEntry(*row);
  }
};

}  // namespace

namespace BRISQUEL {

Status OpenConfigDialog(HWND, const StoreHandle& config, const StoreHandle& master,
                        const StoreHandle& history, const StoreHandle& fourth, int initialPage) {
  using Dialog = Geometry::CGeometryWnd<CConfigurationMain>;
  return RunEntryPoint(UiLibrary::kAttach, config,
                       [&] { return Dialog(config, master, history, fourth, initialPage); });
}

Status OpenLanguageDialog(const StoreHandle& config) {
  return RunEntryPoint(UiLibrary::kLeave, config, [&] { return CLanguageDialog(config); });
}

Status ShowMessage(HWND) {
  RunEntryPoint(UiLibrary::kLeave, nullptr,
                [] { return CMessageBox(IDD_MESSAGE_BOX, L"Testing"); });
  return 0;
}

}  // namespace BRISQUEL

const BRISQUEL::EntryPoints* BrisquelEntryPoints() {
  static constexpr BRISQUEL::EntryPoints kEntryPoints = {
      &BRISQUEL::OpenConfigDialog,       &BRISQUEL::ShowMessage,
      &BRISQUEL::OpenClearHistoryDialog, &BRISQUEL::OpenEditHistoryDialog,
      &BRISQUEL::OpenLanguageDialog,     &BRISQUEL::OpenDocumentSettings,
      &BRISQUEL::OpenArchiveSettings,    &BRISQUEL::OpenOCRSettings,
      &BRISQUEL::OpenCacheSettings,      &BRISQUEL::OpenSearchFilterList};
  return &kEntryPoints;
}
