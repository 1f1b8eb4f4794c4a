#include "platform/controls.h"

#include <QApplication>
#include <QFontMetrics>
#include <QStyle>

#include "platform/qt/button_peer.h"
#include "platform/qt/combo_peer.h"
#include "platform/qt/edit_peer.h"
#include "platform/qt/gdi_types.h"
#include "platform/qt/slider_peer.h"
#include "platform/qt/static_peer.h"

void CStatic::SetBitmap(const CBCGPPngImage& image) {
  auto* peer = FindPeerAs<StaticPeer>(m_hWnd);
  if (peer != nullptr && image.Get() != nullptr) {
    peer->SetPicture(QPixmap::fromImage(image.Get()->image));
  }
}

int CButton::GetCheck() const {
  const auto* peer = FindPeerAs<ButtonPeer>(m_hWnd);
  return peer != nullptr ? peer->GetCheck() : BST_UNCHECKED;
}

void CButton::SetCheck(int check) {
  if (auto* peer = FindPeerAs<ButtonPeer>(m_hWnd)) peer->SetCheck(check);
}

void CEdit::SetSel(int start, int end) {
  if (auto* peer = FindPeerAs<EditPeer>(m_hWnd)) peer->SetSelection(start, end);
}

void CEdit::GetSel(int& start, int& end) const {
  const auto* peer = FindPeerAs<EditPeer>(m_hWnd);
  std::tie(start, end) = peer != nullptr ? peer->Selection() : std::pair(0, 0);
}

void CEdit::SetReadOnly(BOOL readOnly) {
  if (auto* peer = FindPeerAs<EditPeer>(m_hWnd)) peer->SetReadOnly(readOnly != FALSE);
}

void CEdit::SetLimitText(UINT characters) {
  if (auto* peer = FindPeerAs<EditPeer>(m_hWnd)) peer->SetLimit(static_cast<int>(characters));
}

int CComboBox::AddString(const CString& text) {
  auto* peer = FindPeerAs<ComboPeer>(m_hWnd);
  return peer != nullptr ? peer->Add(ToQt(text.Str())) : CB_ERR;
}

int CComboBox::InsertString(int row, const CString& text) {
  auto* peer = FindPeerAs<ComboPeer>(m_hWnd);
  return peer != nullptr ? peer->Insert(row, ToQt(text.Str())) : CB_ERR;
}

int CComboBox::DeleteString(UINT row) {
  auto* peer = FindPeerAs<ComboPeer>(m_hWnd);
  return peer != nullptr ? peer->Remove(static_cast<int>(row)) : CB_ERR;
}

void CComboBox::ResetContent() {
  if (auto* peer = FindPeerAs<ComboPeer>(m_hWnd)) peer->Clear();
}

int CComboBox::GetCount() const {
  const auto* peer = FindPeerAs<ComboPeer>(m_hWnd);
  return peer != nullptr ? peer->Count() : CB_ERR;
}

int CComboBox::GetCurSel() const {
  const auto* peer = FindPeerAs<ComboPeer>(m_hWnd);
  return peer != nullptr ? peer->Selection() : CB_ERR;
}

int CComboBox::SetCurSel(int row) {
  auto* peer = FindPeerAs<ComboPeer>(m_hWnd);
  return peer != nullptr ? peer->Select(row) : CB_ERR;
}

void CComboBox::GetLBText(int row, CString& text) const {
  const auto* peer = FindPeerAs<ComboPeer>(m_hWnd);
  text = peer != nullptr ? FromQt(peer->Row(row, Qt::DisplayRole).toString()) : std::wstring();
}

DWORD_PTR CComboBox::GetItemData(int row) const {
  const auto* peer = FindPeerAs<ComboPeer>(m_hWnd);
  return peer != nullptr ? peer->Row(row, ComboPeer::DataRole).value<quintptr>() : 0;
}

int CComboBox::SetItemData(int row, DWORD_PTR data) {
  auto* peer = FindPeerAs<ComboPeer>(m_hWnd);
  const QVariant value = QVariant::fromValue(quintptr{data});
  return peer != nullptr && peer->SetRow(row, ComboPeer::DataRole, value) ? 0 : CB_ERR;
}

int CComboBox::FindStringExact(int startAfter, const CString& text) const {
  const auto* peer = FindPeerAs<ComboPeer>(m_hWnd);
  return peer != nullptr ? peer->FindExact(startAfter, ToQt(text.Str())) : CB_ERR;
}

BOOL CComboBox::GetDroppedState() const {
  const auto* peer = FindPeerAs<ComboPeer>(m_hWnd);
  return peer != nullptr && peer->Dropped();
}

void CComboBox::ShowDropDown(BOOL show) {
  if (auto* peer = FindPeerAs<ComboPeer>(m_hWnd)) peer->Drop(show != FALSE);
}

int CComboBox::SetDroppedWidth(UINT width) {
  auto* peer = FindPeerAs<ComboPeer>(m_hWnd);
  if (peer == nullptr) return CB_ERR;
  peer->SetDroppedWidth(static_cast<int>(width));
  return peer->DroppedWidth();
}

BOOL CComboBox::SetCueBanner(const CString& text) {
  auto* peer = FindPeerAs<ComboPeer>(m_hWnd);
  if (peer == nullptr) return FALSE;
  peer->SetCue(ToQt(text.Str()));
  return TRUE;
}

int CComboBox::GetDroppedWidth() const {
  const auto* peer = FindPeerAs<ComboPeer>(m_hWnd);
  return peer != nullptr ? peer->DroppedWidth() : CB_ERR;
}

BOOL CComboBox::LimitText(int characters) {
  auto* peer = FindPeerAs<ComboPeer>(m_hWnd);
  if (peer != nullptr) peer->SetLimit(characters);
  return peer != nullptr;
}

DWORD CComboBox::GetEditSel() const {
  const auto* peer = FindPeerAs<ComboPeer>(m_hWnd);
  return peer != nullptr ? peer->EditSelection() : static_cast<DWORD>(CB_ERR);
}

BOOL CComboBox::SetEditSel(int start, int end) {
  auto* peer = FindPeerAs<ComboPeer>(m_hWnd);
  return peer != nullptr && peer->SetEditSelection(start, end);
}

int CComboBox::GetTextWidth(const CString& text) const {
  const auto* peer = FindPeerAs<ComboPeer>(m_hWnd);
  return peer != nullptr ? peer->widget->fontMetrics().horizontalAdvance(ToQt(text.Str())) : 0;
}

BOOL CComboBox::OnReflectedNotification(UINT, int) { return FALSE; }

LRESULT CComboBox::SendNotification(UINT code) {
  const auto* peer = FindPeerAs<ComboPeer>(m_hWnd);
  return peer != nullptr ? NotifyCommand(*peer, code) : 0;
}

void CComboBox::ChooseRow(int row) {
  if (auto* peer = FindPeerAs<ComboPeer>(m_hWnd)) peer->ChooseRow(row);
}

int GetSystemMetrics(int index) {
  if (index != SM_CXVSCROLL) return 0;
  return QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent);
}

void CSliderCtrl::SetRange(int minimum, int maximum, BOOL) {
  if (auto* peer = FindPeerAs<SliderPeer>(m_hWnd)) peer->SetRange(minimum, maximum);
}

int CSliderCtrl::GetPos() const {
  const auto* peer = FindPeerAs<SliderPeer>(m_hWnd);
  return peer != nullptr ? peer->Position() : 0;
}

void CSliderCtrl::SetPos(int position) {
  if (auto* peer = FindPeerAs<SliderPeer>(m_hWnd)) peer->SetPosition(position);
}
