#include "dialogs/search_filter_list_dlg.h"

#include "core/blank_store.h"
#include "dialogs/search_filter_edit.h"
#include "foundation/catch_chain.h"
#include "foundation/exception.h"
#include "foundation/language.h"
#include "foundation/message_helpers.h"
#include "foundation/translate_menu.h"
#include "hollerin/hollerin.h"
#include "resources/resource.h"
#include "resources/text_ids.h"

namespace {

constexpr const wchar_t* kSource = L"Brisquel/SearchFilterListDlg";
constexpr const wchar_t* kSection = L"PersistentFilters";
constexpr const wchar_t* kActive = L"Active";

constexpr Geometry::ControlConstraint kLayout[] = {
    {IDC_SEARCH_FILTERS, L"CX+CY"},
    {IDOK, L"X+Y"},
    {IDCANCEL, L"X+Y"},
};

struct Column {
  UINT title;  ///< Language string.
  int width;   ///< For 96 logical pixels per inch.
};
constexpr Column kColumns[] = {{TextId::kColumnFilterName, 300},
                               {TextId::kColumnFilterValue, 200},
                               {TextId::kColumnExtension, 200}};
enum ColumnNumber { kNameColumn, kValueColumn, kKindColumn };

constexpr DWORD kListStyles = LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER;

CString KindText(std::int32_t kind) {
  return LanguageString(kind == INTERNAL_IFC::kLocationFilter ? TextId::kLocation
                                                              : TextId::kColumnFileName);
}

template <class Work>
HRESULT RunReported(Work&& work) {
  return RunGuarded(std::forward<Work>(work), MakeMsgBoxDisplay, CString(), kSource);
}

}  // namespace

BEGIN_MESSAGE_MAP(CSearchFilterListDlg, CBaseTranslateDialog)
ON_BN_CLICKED(IDC_NEW_SEARCH_FILTER, &ThisClass::OnNew)
ON_COMMAND(IDM_EDIT_SEARCH_FILTER, &ThisClass::OnEdit)
ON_COMMAND(IDM_DELETE_SEARCH_FILTER, &ThisClass::OnDelete)
ON_NOTIFY(NM_DBLCLK, IDC_SEARCH_FILTERS, &ThisClass::OnDoubleClick)
ON_MESSAGE(WM_CONTEXTMENU, &ThisClass::OnContextMenu)
END_MESSAGE_MAP()

CSearchFilterListDlg::CSearchFilterListDlg(StoreHandle store, Provider history, bool startActive)
    : CBaseTranslateDialog(IDD_SEARCH_FILTER_LIST),
      store_(std::move(store)),
      history_(std::move(history)),
      startActive_(startActive) {}

void CSearchFilterListDlg::DoDataExchange(CDataExchange* exchange) {
  CBaseTranslateDialog::DoDataExchange(exchange);
  DDX_Control(exchange, IDC_SEARCH_FILTERS, list_);
  DDX_Control(exchange, IDC_SEARCH_FILTERS_ACTIVE, activeBox_);
}

BOOL CSearchFilterListDlg::OnInitDialog() {
  CBaseTranslateDialog::OnInitDialog();
  SetUpList();
  RunReported([this] { LoadFilters(); });
  RunReported([this] { LoadActive(); });
  FillList();
  EnableLayout();
  Geometry::BindControls(*this, this, kLayout);
  return TRUE;
}

void CSearchFilterListDlg::SetUpList() {
  list_.SetExtendedStyle(list_.GetExtendedStyle() | kListStyles);
  int place = 0;
  for (const Column& column : kColumns) {
    list_.InsertColumn(place++, LanguageString(column.title), LVCFMT_LEFT,
                       globalUtils.ScaleByDPI(column.width));
  }
}

void CSearchFilterListDlg::LoadFilters() {
  // Without a list there is nothing to add to, and nothing that could replace the stored one.
  GetDlgItem(IDC_NEW_SEARCH_FILTER)->EnableWindow(FALSE);
  const HRESULT status = HOLLERIN::LoadSearchFilterList(store_, &filters_);
  ThrowHr(status, L"Loading search filters");
  GetDlgItem(IDC_NEW_SEARCH_FILTER)->EnableWindow(TRUE);
  if (status == S_OK) return;
  const auto& text = TextId::kFiltersDamaged;
  ShowMessageText(LanguagePlaceholder(text.dialog, text.number), MB_OK);
}

void CSearchFilterListDlg::LoadActive() {
  const bool active = startActive_ || StoreOrBlank(store_)->ReadBool(kSection, kActive, false);
  activeBox_.SetCheck(active ? BST_CHECKED : BST_UNCHECKED);
}

void CSearchFilterListDlg::FillList() {
  list_.SetRedraw(FALSE);
  list_.DeleteAllItems();
  const std::int32_t count = filters_ != nullptr ? filters_->GetCount() : 0;
  for (std::int32_t index = 0; index < count; ++index) AppendRow(filters_->GetAt(index));
  list_.SetRedraw(TRUE);
}

/// A filter that is missing has a row, too, so that rows and filters have the same numbers.
int CSearchFilterListDlg::AppendRow(const Filter& filter) {
  const CString name = filter != nullptr ? CString(filter->GetName()) : CString();
  const int row = list_.InsertItem(list_.GetItemCount(), name);
  if (filter != nullptr) FillRow(row, filter);
  return row;
}

void CSearchFilterListDlg::FillRow(int row, const Filter& filter) {
  list_.SetItemText(row, kNameColumn, filter->GetName());
  list_.SetItemText(row, kValueColumn, filter->GetValue());
  list_.SetItemText(row, kKindColumn, KindText(filter->GetFilterKind()));
  list_.SetCheck(row, filter->IsEnabled() ? TRUE : FALSE);
  list_.SetItemData(row, reinterpret_cast<DWORD_PTR>(filter.get()));
}

int CSearchFilterListDlg::SelectedRow() const {
  POSITION place = list_.GetFirstSelectedItemPosition();
  return place != 0 ? list_.GetNextSelectedItem(place) : -1;
}

CSearchFilterListDlg::Filter CSearchFilterListDlg::FilterAt(int row) const {
  return filters_ != nullptr && row >= 0 ? filters_->GetAt(row) : nullptr;
}

CSearchFilterListDlg::Filter CSearchFilterListDlg::RunEditor(const Filter& filter) {
  const Filter edited = filter->Clone();
  Geometry::CGeometryWnd<CSearchFilterEdit> editor(history_, store_, edited);
  return editor.DoModal() == IDOK ? edited : nullptr;
}

void CSearchFilterListDlg::OnNew() {
  RunReported([this] {
    Filter blank;
    if (FAILED(HOLLERIN::CreateBlankSearchFilter(&blank)) || blank == nullptr) return;
    const Filter made = RunEditor(blank);
    if (made == nullptr) return;
    filters_->Add(made);
    list_.EnsureVisible(AppendRow(made));
  });
}

void CSearchFilterListDlg::OnEdit() { EditRow(SelectedRow()); }

void CSearchFilterListDlg::OnDoubleClick(NMHDR* header, LRESULT*) {
  EditRow(reinterpret_cast<NMITEMACTIVATE*>(header)->iItem);
}

void CSearchFilterListDlg::EditRow(int row) {
  RunReported([this, row] {
    const Filter filter = FilterAt(row);
    const Filter edited = filter != nullptr ? RunEditor(filter) : nullptr;
    if (edited == nullptr) return;
    // The row may have been switched since the filter was loaded.
    edited->SetEnabled(list_.GetCheck(row) != FALSE);
    filters_->SetAt(row, edited);
    if (const Filter now = filters_->GetAt(row); now != nullptr) FillRow(row, now);
  });
}

void CSearchFilterListDlg::OnDelete() {
  RunReported([this] { DeleteRow(SelectedRow()); });
}

void CSearchFilterListDlg::DeleteRow(int row) {
  const Filter filter = FilterAt(row);
  if (filter == nullptr) return;
  CString question;
  question.Format(LanguageString(TextId::kAskDeleteFilter).Str(), filter->GetName());
  if (ShowMessageText(question, MB_YESNO) != IDYES) return;
  filters_->RemoveAt(row);
  list_.DeleteItem(row);
}

LRESULT CSearchFilterListDlg::OnContextMenu(WPARAM wParam, LPARAM) {
  if (reinterpret_cast<HWND>(wParam) != list_.m_hWnd) return Default();
  RunReported([this] {
    const UINT state = SelectedRow() >= 0 ? MF_ENABLED : MF_GRAYED;
    ShowTranslatedMenu(IDR_SEARCH_FILTER_MENU, this, [state](CMenu& menu) {
      for (const UINT command : {IDM_EDIT_SEARCH_FILTER, IDM_DELETE_SEARCH_FILTER}) {
        menu.EnableMenuItem(command, MF_BYCOMMAND | state);
      }
    });
  });
  return 0;
}

bool CSearchFilterListDlg::TakeCheckBoxes() {
  bool any = false;
  const std::int32_t count = filters_->GetCount();
  for (std::int32_t index = 0; index < count; ++index) {
    const Filter filter = filters_->GetAt(index);
    if (filter == nullptr) continue;
    const bool checked = list_.GetCheck(index) != FALSE;
    if (checked != filter->IsEnabled()) filter->SetEnabled(checked);
    any = any || checked;
  }
  return any;
}

void CSearchFilterListDlg::Store() {
  const bool anyEnabled = filters_ != nullptr && TakeCheckBoxes();
  if (filters_ != nullptr && filters_->IsModified()) {
    // Changed filters are active as soon as one of them is on.
    activeBox_.SetCheck(anyEnabled ? BST_CHECKED : BST_UNCHECKED);
    ThrowHr(HOLLERIN::SaveSearchFilterList(store_, filters_), L"Saving search filters");
  }
  StoreOrBlank(store_)->WriteBool(kSection, kActive, activeBox_.GetCheck() != BST_UNCHECKED);
}

void CSearchFilterListDlg::OnOK() {
  RunReported([this] {
    Store();
    CBaseTranslateDialog::OnOK();
  });
}
