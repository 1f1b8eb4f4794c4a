#include "pages/formats/formats_dialog.h"

#include "foundation/catch_chain.h"
#include "foundation/exception.h"
#include "foundation/language.h"
#include "hollerin/hollerin.h"
#include "resources/resource.h"
#include "resources/text_ids.h"

namespace {

constexpr const wchar_t* kSource = L"Brisquel/FormatsDialog";

}  // namespace

bool HasType(INTERNAL_IFC::IConfigInterpreter& entry, const wchar_t* word) {
  return entry.GetType().find(word) != std::wstring::npos;
}

CFormatsDialog::CFormatsDialog(UINT templateId, const FormatsDescription& description,
                               StoreHandle store)
    : CBaseTranslateDialog(templateId),
      description_(description),
      headings_(description.headings.size()),
      store_(std::move(store)) {}

BOOL CFormatsDialog::OnInitDialog() {
  UseBlankStoreInsteadOfNone();
  CBaseTranslateDialog::OnInitDialog();
  EnableLayout();
  Geometry::BindControls(*this, this, description_.layout);
  FillList();
  ApplyChoice();
  return TRUE;
}

void CFormatsDialog::UseBlankStoreInsteadOfNone() {
  if (store_ != nullptr) return;
  ThrowHr(HOLLERIN::CreateBlankConfigDataMgr(&store_), L"Creating blank configuration");
}

void CFormatsDialog::FillList() {
  list_.SetFilter([shows = description_.shows](const auto& entry) { return shows(*entry); });
  if (description_.syncsFilters) {
    std::shared_ptr<INTERNAL_IFC::IConfigInterpreterListMgr> manager;
    HOLLERIN::CreateConfigInterpreterListMgr(&manager);
    // The list as it is stored is better than none.
    if (manager != nullptr) manager->ResyncIFilters(store_, false);
  }
  list_.SetConfigStore(store_);
  list_.Populate(description_.syncsFilters);
}

void CFormatsDialog::ApplyChoice() {
  ApplyRules(*this, description_.rules);
  list_.ChangeReadOnly(!description_.picksSingleFormats(*this));
}

void CFormatsDialog::OnChoice() {
  RunGuarded([this] { ApplyChoice(); }, MakeMsgBoxDisplay, CString(), kSource);
}

void CFormatsDialog::DoDataExchange(CDataExchange* exchange) {
  CBaseTranslateDialog::DoDataExchange(exchange);
  DDX_Control(exchange, IDC_FORMATS_LIST, list_);
  for (std::size_t index = 0; index < headings_.size(); ++index) {
    DDX_Control(exchange, description_.headings[index], headings_[index]);
  }
  page_values::Values values(description_.values, *store_);
  values.Exchange(exchange);
  if (!exchange->m_bSaveAndValidate) return;
  SaveRows();
  values.Write(*store_);
}

void CFormatsDialog::OnOK() {
  RunGuarded([this] { CBaseTranslateDialog::OnOK(); }, MakeMsgBoxDisplay,
             LanguageString(TextId::kSavingConfiguration), kSource);
}
