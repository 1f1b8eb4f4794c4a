#include "core/value_page.h"

#include <algorithm>

#include "foundation/exception.h"
#include "hollerin/hollerin.h"

namespace {

bool ShowsLabels(const page_values::Row& row) { return !row.control.labels.empty(); }

/// The labels in table order; each row carries its id for pages that act on a choice.
void FillWithLabels(CComboBox& combo, std::span<const LabelRow> labels) {
  for (const LabelRow& label : labels) {
    const int row = combo.AddString(LabelText(label));
    combo.SetItemData(row, static_cast<DWORD_PTR>(label.id));
  }
}

}  // namespace

CValuePage::CValuePage(UINT templateId, const PageDescription& description)
    : CConfigDialog(templateId),
      description_(description),
      headings_(description.headings.size()),
      labelCombos_(
          static_cast<std::size_t>(std::ranges::count_if(description.values.rows, ShowsLabels))) {}

BOOL CValuePage::OnInitDialog() {
  CConfigDialog::OnInitDialog();
  ApplyEnablingRules();
  return TRUE;
}

void CValuePage::DoDataExchange(CDataExchange* exchange) {
  CConfigDialog::DoDataExchange(exchange);
  BindHeadings(exchange);
  BindLabelCombos(exchange);
  BindMembers(exchange);
  const StoreHandle store = StoreForExchange();
  if (store == nullptr) return;
  page_values::Values values(description_.values, *store);
  values.Exchange(exchange);
  if (!exchange->m_bSaveAndValidate) return;
  CheckValues(exchange);
  values.Write(*store);
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

void CValuePage::ApplyEnablingRules() {
  CDataExchange controls(this, FALSE);
  for (const EnablingRule& rule : description_.rules) {
    const BOOL enable = rule.enabled(*this) ? TRUE : FALSE;
    for (const int id : rule.controls) controls.PrepareCtrl(id)->EnableWindow(enable);
  }
}

StoreHandle CValuePage::StoreForExchange() {
  StoreHandle store = GetValueStore();
  if (store == nullptr && description_.withoutStore == WithoutStore::kBlank) {
    ThrowHr(HOLLERIN::CreateBlankConfigDataMgr(&store), L"Creating blank configuration");
  }
  return store;
}

void CValuePage::BindHeadings(CDataExchange* exchange) {
  for (std::size_t index = 0; index < headings_.size(); ++index) {
    DDX_Control(exchange, description_.headings[index], headings_[index]);
  }
}

void CValuePage::BindLabelCombos(CDataExchange* exchange) {
  auto combo = labelCombos_.begin();
  for (const page_values::Row& row : description_.values.rows) {
    if (!ShowsLabels(row)) continue;
    // Filled before the first load, which selects by text.
    const bool first = combo->m_hWnd == nullptr;
    DDX_Control(exchange, row.control.id, *combo);
    if (first) FillWithLabels(*combo, row.control.labels);
    ++combo;
  }
}
