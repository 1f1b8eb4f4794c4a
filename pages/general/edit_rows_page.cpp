#include "pages/general/edit_rows_page.h"

#include "foundation/catch_chain.h"
#include "panterow/panterow.h"

namespace {

constexpr const wchar_t* kSource = L"Brisquel/ConfigEntryRows";

/// The buttons of all rows may share one text, which their image replaces; what is spoken in its
/// place must tell them apart.
void ShowImage(CSemiButton& button, int image) {
  button.SetButtonImage(PANTEROW::GetAppImageList(), image);
  if (const std::wstring tooltip = GetToolTipText(button.m_hWnd); !tooltip.empty()) {
    SetAccessibleName(button.m_hWnd, tooltip);
  }
}

}  // namespace

CEditRowsPage::CEditRowsPage(UINT templateId, const PageDescription& page,
                             const EditRowsDescription& rows)
    : CValuePage(templateId, page), description_(rows), rows_(rows.rows.size()) {}

BOOL CEditRowsPage::OnInitDialog() {
  CValuePage::OnInitDialog();
  BindRowsToLayout();
  Geometry::BindControls(*this, this, description_.layout);
  for (Controls& row : rows_) {
    ShowImage(row.browse, PANTEROW::kImageBrowse);
    ShowImage(row.action, description_.actionImage);
  }
  return TRUE;
}

void CEditRowsPage::BindRowsToLayout() {
  for (const EditRow& row : description_.rows) {
    const Geometry::ControlConstraint table[] = {
        {row.browse, L"X"}, {row.action, L"X"}, {row.edit, L"CX"}};
    Geometry::BindControls(*this, this, table);
  }
}

void CEditRowsPage::BindMembers(CDataExchange* exchange) {
  for (std::size_t index = 0; index < rows_.size(); ++index) {
    const EditRow& ids = description_.rows[index];
    DDX_Control(exchange, ids.edit, rows_[index].edit);
    DDX_Control(exchange, ids.browse, rows_[index].browse);
    DDX_Control(exchange, ids.action, rows_[index].action);
  }
}

BOOL CEditRowsPage::OnCommand(WPARAM wParam, LPARAM lParam) {
  const bool clicked = lParam != 0 && HIWORD(wParam) == BN_CLICKED;
  if (clicked && OnClicked(LOWORD(wParam))) return TRUE;
  return CValuePage::OnCommand(wParam, lParam);
}

bool CEditRowsPage::OnClicked(int id) {
  for (std::size_t index = 0; index < rows_.size(); ++index) {
    const EditRow& ids = description_.rows[index];
    if (id != ids.browse && id != ids.action) continue;
    CEdit& edit = rows_[index].edit;
    const auto work = [&] { id == ids.browse ? OnBrowse(edit) : OnAction(edit); };
    RunGuarded(work, MakeMsgBoxDisplay, CString(), kSource);
    return true;
  }
  return false;
}
