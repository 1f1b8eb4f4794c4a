#include "platform/qt/button_painter.h"

#include "platform/bcg.h"
#include "platform/qt/button_peer.h"
#include "platform/qt/control_parts.h"
#include "platform/qt/gdi_types.h"

namespace {

struct StateBit {
  UINT mine;
  QStyle::StateFlag toolkit;
};

constexpr StateBit kStateBits[] = {
    {ODS_SELECTED, QStyle::State_Sunken},
    {ODS_CHECKED, QStyle::State_On},
    {ODS_FOCUS, QStyle::State_HasFocus},
};

UINT StateOf(const QStyleOptionButton& option, bool checked) {
  UINT state = (option.state & QStyle::State_Enabled) != 0 ? 0 : ODS_DISABLED;
  if (checked) state |= ODS_CHECKED;
  for (const StateBit& bit : kStateBits) {
    if ((option.state & bit.toolkit) != 0) state |= bit.mine;
  }
  return state;
}

void SetState(QStyleOptionButton& option, UINT state) {
  for (const StateBit& bit : kStateBits) option.state.setFlag(bit.toolkit, (state & bit.mine) != 0);
  option.state.setFlag(QStyle::State_Enabled, (state & ODS_DISABLED) == 0);
  option.state.setFlag(QStyle::State_Raised, (state & (ODS_SELECTED | ODS_CHECKED)) == 0);
}

bool IsIdle(const QStyleOptionButton& option) {
  constexpr QStyle::State kBusy = QStyle::State_Sunken | QStyle::State_On | QStyle::State_HasFocus;
  const bool hovered =
      (option.state & QStyle::State_MouseOver) != 0 && (option.state & QStyle::State_Enabled) != 0;
  return (option.state & kBusy) == 0 && !hovered;
}

}  // namespace

ButtonPainter::ButtonPainter(const QPushButton& widget)
    : peer_(PeerOf<ButtonPeer>(&widget)),
      attached_(peer_ != nullptr ? dynamic_cast<CBCGPButton*>(peer_->attached) : nullptr) {}

void ButtonPainter::Paint(QStylePainter& painter, QStyleOptionButton option) const {
  const UINT state = AdjustState(option);
  if (attached_ != nullptr) ApplyFlatStyle(painter, option);
  if (peer_ != nullptr && !peer_->Image().isNull()) {
    option.text.clear();
    option.icon = QIcon(peer_->Image());
    option.iconSize = peer_->Image().size();
  }
  const bool hasFace = dynamic_cast<CBCGPColorButton*>(attached_) != nullptr;
  if (hasFace) option.text.clear();
  painter.drawControl(QStyle::CE_PushButton, option);
  if (hasFace) PaintFace(painter, option, state);
}

UINT ButtonPainter::AdjustState(QStyleOptionButton& option) const {
  const bool checked = peer_ != nullptr && peer_->GetCheck() != BST_UNCHECKED;
  UINT state = StateOf(option, checked);
  if (attached_ != nullptr) state = attached_->OnAdjustDrawState(state);
  SetState(option, state);
  return state;
}

void ButtonPainter::ApplyFlatStyle(QStylePainter& painter, QStyleOptionButton& option) const {
  if (attached_->m_nFlatStyle == CBCGPButton::BUTTONSTYLE_3D || !IsIdle(option)) return;
  option.features |= QStyleOptionButton::Flat;
  if (attached_->m_nFlatStyle == CBCGPButton::BUTTONSTYLE_FLAT) return;
  painter.setPen(option.palette.color(QPalette::Mid));
  painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
}

void ButtonPainter::PaintFace(QStylePainter& painter, const QStyleOptionButton& option,
                              UINT state) const {
  QtPainterDC surface(painter);
  const QRect& face = option.rect;
  static_cast<CBCGPColorButton*>(attached_)->OnDrawFace(
      &surface, CRect(face.left(), face.top(), face.right() + 1, face.bottom() + 1), state);
}
