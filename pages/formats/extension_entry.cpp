#include "pages/formats/extension_entry.h"

#include "foundation/geometry.h"
#include "pages/formats/extension_page.h"

CConfigEntryExtension::CConfigEntryExtension(
    std::shared_ptr<INTERNAL_IFC::IConfigInterpreter> interpreter)
    : name_(interpreter->GetName()), interpreter_(std::move(interpreter)) {}

std::shared_ptr<CDialog> CConfigEntryExtension::GetDialog(
    CWnd* parent, INTERNAL_IFC::IConfigDataProvider* provider) {
  if (page_ == nullptr) {
    // Kept only when its set-up did not raise: a page that was not loaded must never be saved.
    auto page = std::make_shared<Geometry::CGeometryWnd<CConfigEntryExtensionDlg>>(interpreter_);
    page->CreatePage(parent, provider, L"Unable to create extension dlg");
    page_ = std::move(page);
  }
  return page_;
}

HRESULT CConfigEntryExtension::Apply() {
  if (page_ != nullptr) SavePage(*page_);
  return S_OK;
}

HRESULT CConfigEntryExtension::MoveTo(INTERNAL_IFC::IConfigInterpreterList& list) {
  if (page_ == nullptr) return S_OK;
  std::shared_ptr<INTERNAL_IFC::IConfigInterpreter> same;
  const HRESULT status = list.FindByKey(interpreter_->GetKey(), same);
  if (FAILED(status) || same == nullptr) return status;
  interpreter_ = same;
  page_->SetInterpreter(std::move(same));
  return S_OK;
}
