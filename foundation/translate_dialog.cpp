#include "foundation/translate_dialog.h"

#include <cwchar>

#include "foundation/geometry.h"
#include "foundation/globals.h"
#include "foundation/language.h"
#include "foundation/message_helpers.h"
#include "hollerin/hollerin.h"
#include "resources/text_ids.h"

namespace {

/// Selector of the language value that holds a dialog's greatest layout size.
constexpr int kMaxLayoutValue = 1;

/// The leading decimal digits as a number; 0 when there are none, and no more than an int holds.
int LeadingNumber(const wchar_t* text) {
  constexpr int kGreatest = 0x7FFFFFFF;
  int number = 0;
  for (; *text >= L'0' && *text <= L'9'; ++text) {
    const int digit = static_cast<int>(*text - L'0');
    if (number > (kGreatest - digit) / 10) return kGreatest;
    number = number * 10 + digit;
  }
  return number;
}

}  // namespace

BEGIN_MESSAGE_MAP(CBaseTranslateDialog, CBCGPDialog)
ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTW, 0, 0xFFFF, &CBaseTranslateDialog::OnToolTipText)
END_MESSAGE_MAP()

CBaseTranslateDialog::CBaseTranslateDialog(UINT templateId, CWnd* parent)
    : CBCGPDialog(templateId, parent) {
  if (GetGlobalData().m_bUseVisualManagerInBuiltInDialogs) EnableVisualManagerStyle(TRUE, TRUE);
}

BOOL CBaseTranslateDialog::OnInitDialog() {
  CBCGPDialog::OnInitDialog();
  ApplyDialogFont();
  EnableToolTips(TRUE);
  if (FAILED(HOLLERIN::TranslateDialog(static_cast<int>(GetTemplateId()), m_hWnd))) {
    ShowLangMessage(TextId::kTranslationFailed, MB_OK);
  }
  ApplyMaxLayoutSize();
  return TRUE;
}

void CBaseTranslateDialog::ApplyDialogFont() {
  fontMgr_ = PANTEROW::GetFontMgr();
  const CFont& font = fontMgr_->GetDialogFont();
  const auto handle = reinterpret_cast<WPARAM>(&font);
  SendMessage(WM_SETFONT, handle, TRUE);
  SendMessageToDescendants(WM_SETFONT, handle, TRUE);
}

void CBaseTranslateDialog::ApplyMaxLayoutSize() {
  auto* layout = dynamic_cast<Geometry::IGeometryWnd*>(this);
  const auto& manager = Process().language;
  if (layout == nullptr || manager == nullptr) return;
  const wchar_t* value =
      manager->GetDialogValue(static_cast<std::int32_t>(GetTemplateId()), kMaxLayoutValue);
  if (value == nullptr) return;
  const int number = LeadingNumber(value);
  if (number < 1) return;
  // The language gives a width, or a width and a height packed into one number.
  const CSize size(static_cast<DWORD>(globalUtils.ScaleByDPI(number)));
  layout->SetMaxLayoutSize(size.cx, size.cy);
}

BOOL CBaseTranslateDialog::OnToolTipText(UINT /*id*/, NMHDR* header, LRESULT* result) {
  *result = 0;
  auto* tip = reinterpret_cast<TOOLTIPTEXTW*>(header);
  if ((tip->uFlags & TTF_IDISHWND) == 0) return FALSE;
  const int control = ::GetDlgCtrlID(reinterpret_cast<HWND>(header->idFrom));
  CString placeholder;
  if (control == 0 || !placeholder.LoadString(static_cast<UINT>(control))) return FALSE;
  toolTip_ = TranslateText(placeholder);
  tip->lpszText = toolTip_;
  tip->hinst = nullptr;
  return TRUE;
}
