#include "panterow/multi_folder_dialog.h"

#include <algorithm>

#include "hollerin/hollerin.h"
#include "panterow/panterow_resource.h"
#include "platform/file_dialog.h"
#include "platform/message_box.h"

using INTERNAL_IFC::Location;

namespace {

/// Texts of the dialog beside those of its template: a folder without those below it, and a picker
/// that failed.
constexpr int kWithoutSubfoldersText = 11;
constexpr int kPickerFailedText = 12;

/// Characters of the paths that a picker may return.
constexpr DWORD kNameBuffer = 260000;

std::wstring TextOr(int number, const wchar_t* otherwise) {
  std::shared_ptr<RES::ILanguageMgr> language;
  HOLLERIN::GetGlobalMgr(&language);
  const wchar_t* text = language != nullptr
                            ? language->GetPlaceholderText(IDD_MULTI_FOLDER, number, RES::kAnyItem)
                            : nullptr;
  return text != nullptr ? text : otherwise;
}

CString RowText(const Location& location) {
  if (location.subfolders) return location.folder;
  CString text;
  text.Format(TextOr(kWithoutSubfoldersText, L"%s -"), location.folder);
  return text;
}

}  // namespace

BEGIN_MESSAGE_MAP(CMultiFolderDlg, CBCGPDialog)
ON_BN_CLICKED(IDC_ADD_FOLDER, &ThisClass::OnAdd)
ON_BN_CLICKED(IDC_BROWSE_FOLDERS, &ThisClass::OnBrowse)
ON_BN_CLICKED(IDC_REMOVE_FOLDER, &ThisClass::OnRemove)
ON_BN_CLICKED(IDC_FOLDER_UP, &ThisClass::OnUp)
ON_BN_CLICKED(IDC_FOLDER_DOWN, &ThisClass::OnDown)
ON_BN_CLICKED(IDC_SUBFOLDERS, &ThisClass::OnSubfolders)
ON_LBN_SELCHANGE(IDC_FOLDER_LIST, &ThisClass::OnSelected)
END_MESSAGE_MAP()

CMultiFolderDlg::CMultiFolderDlg(Locations locations,
                                 std::shared_ptr<INTERNAL_IFC::ILoadComboReg> history, CWnd* owner)
    : CBCGPDialog(IDD_MULTI_FOLDER, owner),
      locations_(std::move(locations)),
      history_(std::move(history)) {}

void CMultiFolderDlg::DoDataExchange(CDataExchange* exchange) {
  CBCGPDialog::DoDataExchange(exchange);
  DDX_Control(exchange, IDC_NEW_FOLDER, newFolder_);
  DDX_Control(exchange, IDC_FOLDER_LIST, list_);
}

BOOL CMultiFolderDlg::OnInitDialog() {
  CBCGPDialog::OnInitDialog();
  fonts_ = PANTEROW::GetFontMgr();
  const auto font = reinterpret_cast<WPARAM>(&fonts_->GetDialogFont());
  SendMessage(WM_SETFONT, font, TRUE);
  SendMessageToDescendants(WM_SETFONT, font, TRUE);
  // A dialog that cannot be translated keeps its placeholders and can be used all the same.
  HOLLERIN::TranslateDialog(IDD_MULTI_FOLDER, m_hWnd);
  FillHistory();
  for (const Location& location : locations_) list_.AddString(RowText(location));
  list_.SetCurSel(locations_.empty() ? -1 : 0);
  OnSelected();
  return TRUE;
}

void CMultiFolderDlg::FillHistory() {
  std::vector<CString> folders;
  if (history_ == nullptr || FAILED(history_->GetItems(folders))) return;
  for (const CString& folder : folders) newFolder_.AddString(folder);
}

void CMultiFolderDlg::OnSelected() {
  const int row = list_.GetCurSel();
  const bool selected = Has(row);
  Enable(IDC_REMOVE_FOLDER, selected);
  Enable(IDC_FOLDER_UP, Has(row - 1));
  Enable(IDC_FOLDER_DOWN, selected && Has(row + 1));
  Enable(IDC_SUBFOLDERS, selected);
  const bool subfolders = selected && At(row).subfolders;
  CheckDlgButton(IDC_SUBFOLDERS, subfolders ? BST_CHECKED : BST_UNCHECKED);
}

void CMultiFolderDlg::Enable(int id, bool enable) {
  CWnd* control = GetDlgItem(id);
  const CWnd* focus = GetFocus();
  // The keyboard shall not be left on a control that is about to be disabled.
  if (!enable && focus != nullptr && focus->m_hWnd == control->m_hWnd) list_.SetFocus();
  control->EnableWindow(enable);
}

void CMultiFolderDlg::OnAdd() {
  AddTyped();
  newFolder_.SetFocus();
}

void CMultiFolderDlg::AddTyped() {
  CString folder;
  newFolder_.GetWindowText(folder);
  Add(folder.Trim().Str());
  newFolder_.SetWindowText(CString());
}

void CMultiFolderDlg::Add(const std::wstring& folder) {
  if (folder.empty()) return;
  const auto same = [&](const Location& location) { return location.folder == folder; };
  auto place = std::find_if(locations_.begin(), locations_.end(), same);
  const auto row = static_cast<int>(place - locations_.begin());
  if (place == locations_.end()) {
    locations_.push_back({folder, true});
    list_.AddString(RowText(locations_.back()));
  }
  list_.SetCurSel(row);
  OnSelected();
}

void CMultiFolderDlg::OnBrowse() {
  CString start;
  newFolder_.GetWindowText(start);
  const int row = list_.GetCurSel();
  if (start.Trim().IsEmpty() && Has(row)) start = At(row).folder;
  CFolderPickerDialog picker(start, OFN_ALLOWMULTISELECT, this);
  picker.m_ofn.nMaxFile = kNameBuffer;
  if (picker.DoModal() != IDOK) {
    if (CommDlgExtendedError() == 0) return;
    CString title;
    GetWindowText(title);
    MessageBoxW(m_hWnd, TextOr(kPickerFailedText, L"<no language>"), title.Str(),
                MB_OK | MB_ICONEXCLAMATION);
    return;
  }
  for (POSITION place = picker.GetStartPosition(); place != 0;) {
    Add(picker.GetNextPathName(place).Str());
  }
}

void CMultiFolderDlg::OnRemove() {
  const int row = list_.GetCurSel();
  if (!Has(row)) return;
  locations_.erase(locations_.begin() + row);
  list_.DeleteString(static_cast<UINT>(row));
  list_.SetCurSel(Has(row) ? row : row - 1);
  OnSelected();
}

void CMultiFolderDlg::Move(int rows) {
  const int row = list_.GetCurSel();
  if (!Has(row) || !Has(row + rows)) return;
  std::swap(At(row), At(row + rows));
  ShowRow(row);
  ShowRow(row + rows);
  list_.SetCurSel(row + rows);
  OnSelected();
}

void CMultiFolderDlg::OnSubfolders() {
  const int row = list_.GetCurSel();
  if (!Has(row)) return;
  At(row).subfolders = IsDlgButtonChecked(IDC_SUBFOLDERS) != BST_UNCHECKED;
  ShowRow(row);
  list_.SetCurSel(row);
}

void CMultiFolderDlg::ShowRow(int row) {
  list_.DeleteString(static_cast<UINT>(row));
  list_.InsertString(row, RowText(At(row)));
}

void CMultiFolderDlg::OnOK() {
  CString typed;
  newFolder_.GetWindowText(typed);
  const bool typing = !typed.Trim().IsEmpty();
  AddTyped();
  const CWnd* focus = GetFocus();
  const CWnd* holder = focus != nullptr ? focus->GetParent() : nullptr;
  const bool inField = (focus != nullptr && focus->m_hWnd == newFolder_.m_hWnd) ||
                       (holder != nullptr && holder->m_hWnd == newFolder_.m_hWnd);
  if (!typing || !inField) CBCGPDialog::OnOK();
}

BOOL CMultiFolderDlg::PreTranslateMessage(MSG* message) {
  const CWnd* focus = GetFocus();
  if (message->message == WM_KEYDOWN && message->wParam == VK_DELETE && focus != nullptr &&
      focus->m_hWnd == list_.m_hWnd) {
    OnRemove();
    return TRUE;
  }
  return CBCGPDialog::PreTranslateMessage(message);
}
