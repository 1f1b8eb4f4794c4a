#include "pages/formats/default_editor_page.h"

#include "foundation/catch_chain.h"
#include "foundation/exception.h"
#include "quimbly/quimbly.h"

namespace {

constexpr const wchar_t* kSource = L"Brisquel/ConfigEntryEditorDefaultDlg";
constexpr const wchar_t* kSection = L"Editor";
constexpr const wchar_t* kKey = L"UseExternalAsDefault";

/// A radio button and the number that the store has for it.
struct ChoiceRow {
  int button;
  int value;
};
/// The first one that is checked is saved.
constexpr ChoiceRow kChoices[] = {
    {IDC_EDITOR_EXTERNAL, 2}, {IDC_EDITOR_OWN, 1}, {IDC_EDITOR_VIEWER, 3}, {IDC_EDITOR_DESKTOP, 4}};
constexpr int kUsualChoice = 3;  ///< While there is none.

constexpr int kExternalControls[] = {IDC_EDITOR_EXTERNAL, IDC_EDITOR_LIST, IDC_EDITOR_LIST_HEADING};

constexpr int kHeadings[] = {IDC_DEFAULT_EDITOR_HEADING, IDC_EDITOR_LIST_HEADING};

// The number is no plain value: its default depends on what is stored, and it is read once.
constexpr PageDescription kPage = {.headings = kHeadings};

/// What the item data of a row that has none may be.
constexpr auto kNoData = static_cast<DWORD_PTR>(-1);

}  // namespace

CConfigEntryEditorDefaultDlg::CConfigEntryEditorDefaultDlg() : CValuePage(IDD, kPage) {}

BOOL CConfigEntryEditorDefaultDlg::OnInitDialog() {
  CValuePage::OnInitDialog();
  CheckStoredChoice();
  RunGuarded([this] { ListEditors(); }, MakeLogDisplay, CString(), kSource);
  const bool known = manager_ != nullptr && manager_->HasEditors();
  for (const int id : kExternalControls) GetDlgItem(id)->EnableWindow(known ? TRUE : FALSE);
  CString heading;
  GetDlgItemText(IDC_EDITOR_LIST_HEADING, heading);
  SetAccessibleName(combo_.m_hWnd, heading);
  return TRUE;
}

void CConfigEntryEditorDefaultDlg::CheckStoredChoice() {
  const StoreHandle store = GetWorkingStore();
  const int stored = store != nullptr ? store->ReadInt(kSection, kKey, 0) : 0;
  const int choice = stored != 0 ? stored : kUsualChoice;
  for (const ChoiceRow& row : kChoices) {
    CheckDlgButton(row.button, row.value == choice ? BST_CHECKED : BST_UNCHECKED);
  }
}

void CConfigEntryEditorDefaultDlg::ListEditors() {
  ThrowHr(TOLLIVER::CreateExternalEditorMgr(GetWorkingStore(), &manager_),
          L"Creating external editor manager");
  if (!manager_->HasEditors()) return;
  std::shared_ptr<INTERNAL_IFC::IExternalEditor> current;
  ThrowHr(manager_->GetEditors(editors_, current), L"Getting external editors");
  for (const auto& editor : editors_) {
    const int row = combo_.AddString(editor->GetName());
    combo_.SetItemData(row, reinterpret_cast<DWORD_PTR>(editor.get()));
  }
  int selected = 0;
  for (int row = 0; row < combo_.GetCount(); ++row) {
    if (combo_.GetItemData(row) == reinterpret_cast<DWORD_PTR>(current.get())) selected = row;
  }
  combo_.SetCurSel(selected);
}

void CConfigEntryEditorDefaultDlg::BindMembers(CDataExchange* exchange) {
  DDX_Control(exchange, IDC_EDITOR_LIST, combo_);
}

void CConfigEntryEditorDefaultDlg::DoDataExchange(CDataExchange* exchange) {
  CValuePage::DoDataExchange(exchange);
  if (!exchange->m_bSaveAndValidate) return;
  const StoreHandle store = GetWorkingStore();
  if (store == nullptr) return;
  store->WriteInt(kSection, kKey, Choice());
  RememberEditor();
}

int CConfigEntryEditorDefaultDlg::Choice() const {
  for (const ChoiceRow& row : kChoices) {
    if (IsDlgButtonChecked(row.button) != 0) return row.value;
  }
  return kUsualChoice;
}

void CConfigEntryEditorDefaultDlg::RememberEditor() {
  if (!GetDlgItem(IDC_EDITOR_EXTERNAL)->IsWindowEnabled() || combo_.GetCount() == 0) return;
  const int row = combo_.GetCurSel();
  if (row < 0 || row >= combo_.GetCount()) return;
  const DWORD_PTR data = combo_.GetItemData(row);
  if (data == 0 || data == kNoData) return;
  manager_->SetDefaultEditor(reinterpret_cast<INTERNAL_IFC::IExternalEditor*>(data));
}
