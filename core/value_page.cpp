#include "core/value_page.h"

#include <algorithm>

#include "core/blank_store.h"

namespace {

bool ShowsLabels(const page_values::Row& row) { return !row.control.labels.empty(); }
bool ShowsColour(const page_values::Row& row) {
  return row.control.kind == page_values::Kind::kColour;
}

std::size_t Count(const PageDescription& description, bool (*isOfKind)(const page_values::Row&)) {
  return static_cast<std::size_t>(std::ranges::count_if(description.values.rows, isOfKind));
}

/// Each row carries its id for pages that act on a choice.
void AddLabel(CComboBox& combo, const LabelRow& label) {
  const int row = combo.AddString(LabelText(label));
  combo.SetItemData(row, static_cast<DWORD_PTR>(label.id));
}

/// The labels in table order, or those that are offered in the order of the offer.
void FillWithLabels(CComboBox& combo, const page_values::Control& control) {
  if (control.offered.empty()) {
    for (const LabelRow& label : control.labels) AddLabel(combo, label);
  }
  for (const std::int32_t id : control.offered) {
    AddLabel(combo, *std::ranges::find(control.labels, id, &LabelRow::id));
  }
}

}  // namespace

std::optional<int> ChosenId(const CWnd& page, int combo) {
  const auto* box = dynamic_cast<const CComboBox*>(page.GetDlgItem(combo));
  const int row = box != nullptr ? box->GetCurSel() : CB_ERR;
  if (row < 0) return std::nullopt;
  return static_cast<int>(box->GetItemData(row));
}

CValuePage::CValuePage(UINT templateId, const PageDescription& description)
    : CConfigDialog(templateId),
      description_(description),
      headings_(description.headings.size()),
      labelCombos_(Count(description, ShowsLabels)),
      colourButtons_(Count(description, ShowsColour)) {}

BOOL CValuePage::OnInitDialog() {
  CConfigDialog::OnInitDialog();
  ApplyEnablingRules();
  return TRUE;
}

void CValuePage::DoDataExchange(CDataExchange* exchange) {
  CConfigDialog::DoDataExchange(exchange);
  BindHeadings(exchange);
  BindValueControls(exchange);
  BindMembers(exchange);
  const StoreHandle store = StoreForExchange();
  if (store == nullptr) return;
  BeginExchange(exchange, store);
  page_values::Values values(description_.values, *store);
  values.Exchange(exchange);
  if (exchange->m_bSaveAndValidate) {
    CheckValues(exchange);
    values.Write(*store);
  }
  EndExchange(exchange, store);
}

BOOL CValuePage::OnCommand(WPARAM wParam, LPARAM lParam) {
  const HWND window = m_hWnd;
  const BOOL handled = CConfigDialog::OnCommand(wParam, lParam);
  const UINT code = HIWORD(wParam);
  // A click may have closed the page's host.
  if (lParam != 0 && (code == BN_CLICKED || code == CBN_SELCHANGE) && IsWindow(window)) {
    ApplyEnablingRules();
  }
  return handled;
}

StoreHandle CValuePage::StoreForExchange() {
  const StoreHandle store = GetValueStore();
  return description_.withoutStore == WithoutStore::kBlank ? StoreOrBlank(store) : store;
}

void CValuePage::BindHeadings(CDataExchange* exchange) {
  for (std::size_t index = 0; index < headings_.size(); ++index) {
    DDX_Control(exchange, description_.headings[index], headings_[index]);
  }
}

void CValuePage::BindValueControls(CDataExchange* exchange) {
  auto combo = labelCombos_.begin();
  auto button = colourButtons_.begin();
  for (const page_values::Row& row : description_.values.rows) {
    const page_values::Control& control = row.control;
    if (ShowsColour(row)) DDX_Control(exchange, control.id, *button++);
    if (!ShowsLabels(row)) continue;
    // Filled before the first load, which selects by text.
    const bool first = combo->m_hWnd == nullptr;
    DDX_Control(exchange, control.id, *combo);
    if (first) FillWithLabels(*combo, control);
    ++combo;
  }
}
