#include "core/config_dialog.h"

#include "foundation/message_helpers.h"

void CConfigDialog::CreatePage(CWnd* parent, INTERNAL_IFC::IConfigDataProvider* provider,
                               const wchar_t* failure) {
  provider_ = provider;
  if (!Create(GetTemplateId(), parent)) ShowErrorText(failure);
}

StoreHandle CConfigDialog::GetWorkingStore() const {
  StoreHandle store;
  if (provider_ != nullptr) provider_->GetConfig(store);
  return store;
}

bool SavePage(CDialog& page) {
  return page.GetSafeHwnd() == nullptr || page.UpdateData(TRUE) != FALSE;
}
