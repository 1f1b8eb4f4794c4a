#include "dialogs/edit_history_dlg.h"

#include "dialogs/history_categories.h"
#include "foundation/catch_chain.h"
#include "foundation/language.h"
#include "panterow/edit_box.h"
#include "resources/resource.h"
#include "resources/text_ids.h"

namespace {

constexpr const wchar_t* kSource = L"Brisquel/EditHistoryDlg";
constexpr const wchar_t* kLoading = L"Loading history";
constexpr const wchar_t* kSaving = L"Saving history changes";

constexpr Geometry::ControlConstraint kLayout[] = {
    {IDC_HISTORY_LIST, L"CY"},
    {IDC_HISTORY_EDIT, L"CX+CY"},
    {IDOK, L"X+Y"},
    {IDCANCEL, L"X+Y"},
};

constexpr int kSeparator = -1;

/// The rows of the list. The history of script engines is not offered.
constexpr int kRows[] = {1, 2, 0, kSeparator, 5, 8, 9, 6, 7, 4, 11, 12, kSeparator, 10, 13};

CString JoinLines(const std::vector<CString>& entries) {
  std::wstring text;
  for (const CString& entry : entries) {
    if (&entry != &entries.front()) text += L"\r\n";
    text += entry.Str();
  }
  return text;
}

std::vector<CString> SplitLines(const std::wstring& text) {
  std::vector<CString> lines;
  std::size_t first = 0;
  for (std::size_t end; (end = text.find(L'\n', first)) != std::wstring::npos; first = end + 1) {
    lines.emplace_back(text.substr(first, end - first));
  }
  lines.emplace_back(text.substr(first));
  return lines;
}

template <class Work>
HRESULT RunReported(Work&& work) {
  return RunGuarded(std::forward<Work>(work), MakeMsgBoxDisplay, CString(), kSource);
}

}  // namespace

BEGIN_MESSAGE_MAP(CEditHistoryDlg, CBaseTranslateDialog)
ON_LBN_SELCHANGE(IDC_HISTORY_LIST, &ThisClass::OnCategoryChanged)
END_MESSAGE_MAP()

CEditHistoryDlg::CEditHistoryDlg(std::shared_ptr<INTERNAL_IFC::ILoadComboReg> lists,
                                 std::int32_t maximum)
    : CBaseTranslateDialog(IDD_EDIT_HISTORY), lists_(std::move(lists)), maximum_(maximum) {}

void CEditHistoryDlg::DoDataExchange(CDataExchange* exchange) {
  CBaseTranslateDialog::DoDataExchange(exchange);
  DDX_Control(exchange, IDC_HISTORY_LIST, categories_);
}

BOOL CEditHistoryDlg::OnInitDialog() {
  CBaseTranslateDialog::OnInitDialog();
  FillCategories();
  ModifyStyle(0, WS_THICKFRAME);
  EnableLayout();
  CreateEdit();
  categories_.SetCurSel(0);
  RunReported([this] { ShowSelected(); });
  Geometry::BindControls(*this, this, kLayout);
  return TRUE;
}

void CEditHistoryDlg::FillCategories() {
  const auto& name = TextId::kHistoryListName;
  SetAccessibleName(categories_.m_hWnd, LanguagePlaceholder(name.dialog, name.number));
  for (const int category : kRows) {
    if (category == kSeparator) {
      categories_.AddSeparator();
    } else {
      const int row = categories_.AddString(HistoryName(category));
      categories_.SetItemData(row, static_cast<DWORD_PTR>(category));
    }
  }
}

void CEditHistoryDlg::CreateEdit() {
  const CRect place = GetChildRect(GetDlgItem(IDC_HISTORY_FRAME)->m_hWnd);
  CWnd* edit = CWnd::FromHandle(PANTEROW::CreateEditBox(this, place, IDC_HISTORY_EDIT));
  edit->SetWindowPos(&categories_, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  const auto& text = TextId::kHistoryEditText;
  edit->SetWindowText(LanguagePlaceholder(text.dialog, text.number));
}

CWnd& CEditHistoryDlg::Edit() const { return *GetDlgItem(IDC_HISTORY_EDIT); }

void CEditHistoryDlg::OnCategoryChanged() {
  if (FAILED(RunReported([this] { ShowSelected(); }))) SelectShown();
}

void CEditHistoryDlg::ShowSelected() {
  StoreShown();
  const int row = categories_.GetCurSel();
  if (row == LB_ERR || categories_.IsSeparatorItem(row)) return;
  Load(static_cast<int>(categories_.GetItemData(row)));
}

void CEditHistoryDlg::Load(int category) {
  ThrowHr(lists_ != nullptr ? S_OK : E_FAIL, kLoading);
  ThrowHr(lists_->SelectList(HistorySection(category), maximum_), kLoading);
  std::vector<CString> entries;
  ThrowHr(lists_->GetItems(entries), kLoading);
  Edit().SetWindowText(JoinLines(entries));
  SetAccessibleName(Edit().m_hWnd, HistoryName(category));
  shown_ = category;
}

void CEditHistoryDlg::StoreShown() {
  if (shown_ < 0) return;
  CString text;
  Edit().GetWindowText(text);
  ThrowHr(lists_->SelectList(HistorySection(shown_), maximum_), kSaving);
  ThrowHr(lists_->SetItems(SplitLines(text.Str())), kSaving);
}

void CEditHistoryDlg::SelectShown() {
  for (int row = 0; shown_ >= 0 && row < categories_.GetCount(); ++row) {
    const bool history = !categories_.IsSeparatorItem(row);
    if (history && categories_.GetItemData(row) == static_cast<DWORD_PTR>(shown_)) {
      categories_.SetCurSel(row);
    }
  }
}

void CEditHistoryDlg::OnOK() {
  RunReported([this] {
    StoreShown();
    CBaseTranslateDialog::OnOK();
  });
}
