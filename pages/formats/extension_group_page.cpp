#include "pages/formats/extension_group_page.h"

#include "foundation/catch_chain.h"
#include "foundation/exception.h"
#include "foundation/message_helpers.h"
#include "pages/formats/extension_mgr.h"
#include "resources/text_ids.h"

namespace {

constexpr const wchar_t* kSource = L"Brisquel/ConfigEntryExtensionMainDlg";

// Where reports of a failed reset say that it failed.
constexpr std::int32_t kResyncLine = 55;
constexpr std::int32_t kReloadLine = 59;
constexpr std::int32_t kSaveLine = 62;

constexpr int kHeadings[] = {IDC_EXTENSION_GROUP_HEADING};
constexpr PageDescription kPage = {.headings = kHeadings};

}  // namespace

BEGIN_MESSAGE_MAP(CConfigEntryExtensionMainDlg, CValuePage)
ON_BN_CLICKED(IDC_RESET_INTERPRETERS, &ThisClass::OnReset)
END_MESSAGE_MAP()

CConfigEntryExtensionMainDlg::CConfigEntryExtensionMainDlg(CConfigExtensionMgr& manager,
                                                           StoreHandle store)
    : CValuePage(IDD, kPage), manager_(manager), store_(std::move(store)) {}

void CConfigEntryExtensionMainDlg::OnReset() {
  if (ShowLangMessage(TextId::kAskResetInterpreters, MB_YESNOCANCEL) != IDYES) return;
  const auto reset = [this] {
    StoreDefaults();
    manager_.Reload();
  };
  RunGuarded(reset, MakeMsgBoxDisplay, CString(), kSource);
}

void CConfigEntryExtensionMainDlg::StoreDefaults() const {
  // Without the record of what was found on the machine the search for it starts afresh.
  if (store_ != nullptr) store_->WriteString(L"Filters", L"RegFileTypes", L"");
  std::shared_ptr<INTERNAL_IFC::IConfigInterpreterListMgr> maintenance;
  ThrowHr(HOLLERIN::CreateConfigInterpreterListMgr(&maintenance), L"Creating list mgr");
  ThrowHr(maintenance->ResyncIFilters(store_, true), L"Resyncing IFilters", kResyncLine);
  HOLLERIN::InterpreterListHandle defaults;
  ThrowHr(maintenance->LoadDefaultList(store_, defaults), L"Reloading defaults", kReloadLine);
  ThrowHr(HOLLERIN::SaveConfigInterpreterList(store_, defaults, true),
          L"Saving defaults as current", kSaveLine);
}
