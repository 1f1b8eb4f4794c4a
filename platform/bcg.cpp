#include "platform/bcg.h"

#include <QBrush>

#include "platform/qt/button_peer.h"
#include "platform/qt/colour_palette.h"
#include "platform/qt/combo_peer.h"
#include "platform/qt/gdi_types.h"
#include "platform/qt/size_grip.h"

namespace {

constexpr int kPixelsPerInch = 96;
constexpr int kColourMargin = 4;

}  // namespace

CBCGPGlobalUtils globalUtils;

CBCGPGlobalData& GetGlobalData() {
  static CBCGPGlobalData data;
  if (data.fontRegular.IsEmpty()) data.fontRegular.CreateDialogFont();
  return data;
}

int CBCGPGlobalUtils::ScaleByDPI(int pixels) const {
  return MulDiv(pixels, GetScreenCaps(LOGPIXELSX), kPixelsPerInch);
}

void CBCGPDialog::EnableLayout(BOOL enable) {
  const Peer* peer = FindPeer(m_hWnd);
  if (peer == nullptr) return;
  ModifyStyle(enable != FALSE ? 0 : WS_THICKFRAME, enable != FALSE ? WS_THICKFRAME : 0);
  SetSizeGrip(*peer->widget, enable != FALSE);
}

void CBCGPDialog::AdjustControlsLayout() {
  CRect client;
  GetClientRect(client);
  SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.Width(), client.Height()));
}

void CBCGPStatic::MarkAsSeparator() {
  if (Peer* peer = FindPeer(m_hWnd)) SetPeerKind(*peer, ControlKind::Separator);
}

BEGIN_MESSAGE_MAP(CBCGPEdit, CEdit)
ON_WM_SYSKEYDOWN()
END_MESSAGE_MAP()

void CBCGPEdit::OnSysKeyDown(UINT key, UINT repeats, UINT flags) {
  if (key != VK_RIGHT) return CEdit::OnSysKeyDown(key, repeats, flags);
  OnBrowse();
}

void CBCGPComboBox::SetItemIndent(int row, int pixels) {
  if (auto* peer = FindPeerAs<ComboPeer>(m_hWnd)) peer->SetRow(row, ComboPeer::IndentRole, pixels);
}

int CBCGPComboBox::GetItemIndent(int row) const {
  const auto* peer = FindPeerAs<ComboPeer>(m_hWnd);
  return peer != nullptr ? peer->Row(row, ComboPeer::IndentRole).toInt() : 0;
}

void CBCGPComboBox::SetItemColor(int row, COLORREF colour) {
  auto* peer = FindPeerAs<ComboPeer>(m_hWnd);
  if (peer != nullptr) peer->SetRow(row, Qt::ForegroundRole, QBrush(ToQt(colour)));
}

void CBCGPButton::PreSubclassWindow() { Invalidate(); }

void CBCGPButton::SetButtonImage(const CImageList& images, int index) {
  auto* peer = FindPeerAs<ButtonPeer>(m_hWnd);
  if (peer == nullptr || index < 0 || index >= images.GetImageCount()) return;
  peer->SetImage(images.Get()->images[static_cast<std::size_t>(index)], index);
}

int CBCGPButton::GetButtonImage() const {
  const auto* peer = FindPeerAs<ButtonPeer>(m_hWnd);
  return peer != nullptr ? peer->ImageIndex() : -1;
}

CSize CBCGPButton::SizeToContent(BOOL calculateOnly) {
  const auto* peer = FindPeerAs<ButtonPeer>(m_hWnd);
  if (peer == nullptr) return {};
  QSize size = peer->widget->sizeHint();
  if (!peer->Image().isNull()) {
    const int margins = 2 * ImageMargin();
    size = peer->Image().size() + QSize(margins, margins);
  }
  if (!calculateOnly) {
    SetWindowPos(0, 0, size.width(), size.height(), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
  return {size.width(), size.height()};
}

void CBCGPColorButton::PreSubclassWindow() {
  CBCGPButton::PreSubclassWindow();
  auto* peer = FindPeerAs<ButtonPeer>(m_hWnd);
  if (peer == nullptr) return;
  SetPeerKind(*peer, ControlKind::Colour);
  peer->OpenOnClick(&ColourPalette::Open);
  SetColor(colour_);
}

void CBCGPColorButton::SetColor(COLORREF colour) {
  colour_ = colour;
  const Peer* peer = FindPeer(m_hWnd);
  if (peer == nullptr) return;
  peer->widget->setProperty("colour", static_cast<int>(colour));
  peer->widget->update();
}

void CBCGPColorButton::EnableOtherButton(const CString& caption) { other_ = caption; }

void CBCGPColorButton::OnDrawFace(CDC* dc, const CRect& rect, UINT state) {
  CRect face = rect;
  face.DeflateRect(kColourMargin, kColourMargin);
  dc->FillSolidRect(face, (state & ODS_DISABLED) != 0 ? GetSysColor(COLOR_BTNFACE) : colour_);
}

void DDX_ColorButton(CDataExchange* exchange, int id, COLORREF& value) {
  auto* button = dynamic_cast<CBCGPColorButton*>(exchange->PrepareCtrl(id));
  if (button == nullptr) return;
  if (exchange->m_bSaveAndValidate) {
    value = button->GetColor();
  } else {
    button->SetColor(value);
  }
}
