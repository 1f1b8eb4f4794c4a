#include "core/single_config_dialog.h"

#include "core/page_host.h"
#include "platform/exceptions.h"
#include "resources/resource.h"

CSingleConfigDialog::CSingleConfigDialog(StoreHandle config,
                                         std::shared_ptr<INTERNAL_IFC::IConfigEntry> entry,
                                         CWnd* parent)
    : CBaseTranslateDialog(IDD_SINGLE_PAGE, parent),
      config_(std::move(config)),
      entry_(std::move(entry)) {}

BOOL CSingleConfigDialog::OnInitDialog() {
  CBaseTranslateDialog::OnInitDialog();
  page_ = entry_->GetDialog(this, this);
  if (page_ == nullptr) return TRUE;
  if (hook_) hook_(page_);
  AdoptPage(*page_);
  PlacePage(*page_, frame_, *this);
  return TRUE;
}

void CSingleConfigDialog::DoDataExchange(CDataExchange* exchange) {
  CBaseTranslateDialog::DoDataExchange(exchange);
  DDX_Control(exchange, IDC_SINGLE_PAGE_FRAME, frame_);
  if (page_ == nullptr || page_->GetSafeHwnd() == nullptr) return;
  // Not exchange->Fail(): the page has given the focus to the control at fault.
  if (!page_->UpdateData(exchange->m_bSaveAndValidate)) AfxThrowUserException();
}
