#include "core/single_config_dialog.h"

#include "core/page_host.h"
#include "foundation/catch_chain.h"
#include "foundation/language.h"
#include "platform/exceptions.h"
#include "resources/resource.h"
#include "resources/text_ids.h"

namespace {

constexpr const wchar_t* kSource = L"Brisquel/SingleConfigDialog";

}  // namespace

CSingleConfigDialog::CSingleConfigDialog(StoreHandle config,
                                         std::shared_ptr<INTERNAL_IFC::IConfigEntry> entry,
                                         CWnd* parent)
    : CBaseTranslateDialog(IDD_SINGLE_PAGE, parent),
      config_(std::move(config)),
      entry_(std::move(entry)) {}

BOOL CSingleConfigDialog::OnInitDialog() {
  CBaseTranslateDialog::OnInitDialog();
  RunGuarded([this] { ShowPage(); }, MakeMsgBoxDisplay, CString(), kSource);
  return TRUE;
}

void CSingleConfigDialog::ShowPage() {
  page_ = entry_->GetDialog(this, this);
  if (page_ == nullptr) return;
  if (hook_) hook_(page_);
  AdoptPage(*page_);
  PlacePage(*page_, frame_, *this);
}

void CSingleConfigDialog::OnOK() {
  RunGuarded([this] { CBaseTranslateDialog::OnOK(); }, MakeMsgBoxDisplay,
             LanguageString(TextId::kSavingConfiguration), kSource);
}

void CSingleConfigDialog::DoDataExchange(CDataExchange* exchange) {
  CBaseTranslateDialog::DoDataExchange(exchange);
  DDX_Control(exchange, IDC_SINGLE_PAGE_FRAME, frame_);
  if (page_ == nullptr || page_->GetSafeHwnd() == nullptr) return;
  // Not exchange->Fail(): the page has given the focus to the control at fault.
  if (!page_->UpdateData(exchange->m_bSaveAndValidate)) AfxThrowUserException();
}
