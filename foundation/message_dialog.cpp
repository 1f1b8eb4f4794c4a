#include "foundation/message_dialog.h"

#include "foundation/catch_chain.h"
#include "foundation/clipboard_text.h"
#include "resources/resource.h"

namespace {

/// Room between the image and the text, in pixels at 96 per inch.
constexpr int kTextMargin = 10;

}  // namespace

BEGIN_MESSAGE_MAP(CMessageBox, CBCGPDialog)
ON_WM_ERASEBKGND()
ON_BN_CLICKED(IDC_COPY_TO_CLIPBOARD, &CMessageBox::OnCopy)
END_MESSAGE_MAP()

CMessageBox::CMessageBox(UINT templateId, CString text, CWnd* parent)
    : CBCGPDialog(templateId, parent), text_(std::move(text)) {}

void CMessageBox::DoDataExchange(CDataExchange* exchange) {
  CBCGPDialog::DoDataExchange(exchange);
  DDX_Control(exchange, IDC_MESSAGE_IMAGE, imageControl_);
}

BOOL CMessageBox::OnInitDialog() {
  CBCGPDialog::OnInitDialog();
  SetDlgItemText(IDC_MESSAGE_TEXT, text_);
  font_.CreateFontIndirect({.lfHeight = globalUtils.ScaleByDPI(25),
                            .lfWeight = FW_NORMAL,
                            .lfQuality = ANTIALIASED_QUALITY,
                            .lfFaceName = L"Tahoma"});
  if (image_.Load(IDR_MESSAGE_IMAGE)) imageControl_.SetBitmap(image_);
  return TRUE;
}

BOOL CMessageBox::OnEraseBkgnd(CDC* dc) {
  if (imageControl_.GetSafeHwnd() != nullptr) {
    const CRect image = GetChildRect(imageControl_.m_hWnd);
    CRect client;
    GetClientRect(client);
    dc->SelectFont(font_);
    dc->DrawText(text_,
                 CRect(image.right + globalUtils.ScaleByDPI(kTextMargin), image.top, client.right,
                       image.bottom),
                 DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS);
  }
  return CBCGPDialog::OnEraseBkgnd(dc);
}

void CMessageBox::OnCopy() {
  RunGuarded([this] { CopyTextToClipboard(text_, m_hWnd); }, MakeMsgBoxDisplay, CString(),
             L"foundation/message_dialog");
}
