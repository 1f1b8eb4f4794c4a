#include "platform/qt/colour_palette.h"

#include <QButtonGroup>
#include <QColorDialog>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QToolButton>
#include <algorithm>

#include "platform/bcg.h"
#include "platform/qt/button_peer.h"
#include "platform/qt/gdi_types.h"

namespace {

constexpr int kColumns = 5;

constexpr COLORREF kStandardColours[] = {
    RGB(0, 0, 0),       RGB(128, 0, 0),     RGB(0, 128, 0),     RGB(128, 128, 0),
    RGB(0, 0, 128),     RGB(128, 0, 128),   RGB(0, 128, 128),   RGB(192, 192, 192),
    RGB(192, 220, 192), RGB(166, 202, 240), RGB(255, 251, 240), RGB(160, 160, 164),
    RGB(128, 128, 128), RGB(255, 0, 0),     RGB(0, 255, 0),     RGB(255, 255, 0),
    RGB(0, 0, 255),     RGB(255, 0, 255),   RGB(0, 255, 255),   RGB(255, 255, 255),
};

QIcon Swatch(const QColor& colour, int side) {
  QPixmap picture(side, side);
  picture.fill(colour);
  QPainter painter(&picture);
  painter.setPen(Qt::gray);
  painter.drawRect(0, 0, side - 1, side - 1);
  painter.end();
  return QIcon(picture);
}

CBCGPColorButton* ColourButton(const Peer* peer) {
  return peer != nullptr ? dynamic_cast<CBCGPColorButton*>(peer->attached) : nullptr;
}

}  // namespace

void ColourPalette::Open(HWND button) {
  const auto* peer = FindPeerAs<ButtonPeer>(button);
  if (peer == nullptr) return;
  if (ColourButton(peer) == nullptr) {
    NotifyCommand(*peer, BN_CLICKED);
    return;
  }
  auto* palette = new ColourPalette(button, *peer->widget);
  palette->Place(*peer->widget);
  palette->show();
}

ColourPalette::ColourPalette(HWND button, QWidget& anchor)
    : QFrame(&anchor, Qt::Popup), button_(button) {
  setAttribute(Qt::WA_DeleteOnClose);
  setObjectName(QStringLiteral("colourPalette"));
  setFrameStyle(QFrame::StyledPanel);
  const CBCGPColorButton& owner = *ColourButton(FindPeer(button));
  auto* layout = new QGridLayout(this);
  layout->setSpacing(1);
  layout->setContentsMargins(3, 3, 3, 3);
  AddColours(*layout, owner.GetColor());
  if (!owner.OtherCaption().IsEmpty()) AddOther(*layout, ToQt(owner.OtherCaption().Str()));
}

void ColourPalette::AddColours(QGridLayout& layout, COLORREF current) {
  const int side = fontMetrics().height();
  // In a group the arrow keys walk the grid.
  auto* group = new QButtonGroup(this);
  group->setExclusive(false);
  int place = 0;
  for (const COLORREF colour : kStandardColours) {
    auto* swatch = new QToolButton(this);
    swatch->setAutoRaise(true);
    swatch->setFocusPolicy(Qt::StrongFocus);
    swatch->setIcon(Swatch(ToQt(colour), side));
    swatch->setIconSize(QSize(side, side));
    swatch->setProperty("colour", static_cast<int>(colour));
    swatch->setAccessibleName(ToQt(colour).name());
    group->addButton(swatch);
    layout.addWidget(swatch, place / kColumns, place % kColumns);
    if (place == 0 || colour == current) swatch->setFocus();
    connect(swatch, &QToolButton::clicked, this, [this, colour] {
      const HWND button = button_;
      close();
      Choose(button, colour);
    });
    ++place;
  }
}

void ColourPalette::AddOther(QGridLayout& layout, const QString& caption) {
  auto* other = new QPushButton(caption, this);
  other->setObjectName(QStringLiteral("otherColour"));
  other->setAutoDefault(false);
  layout.addWidget(other, layout.rowCount(), 0, 1, kColumns);
  connect(other, &QPushButton::clicked, this, [this] { ChooseOther(); });
}

void ColourPalette::Place(const QWidget& anchor) {
  const QSize size = sizeHint();
  const QRect screen = anchor.screen()->availableGeometry();
  QPoint place = anchor.mapToGlobal(QPoint(0, anchor.height()));
  if (place.y() + size.height() > screen.bottom()) {
    place.setY(anchor.mapToGlobal(QPoint()).y() - size.height());
  }
  place.setX(
      std::clamp(place.x(), screen.left(), std::max(screen.left(), screen.right() - size.width())));
  setGeometry(QRect(place, size));
}

void ColourPalette::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (event->key() == Qt::Key_Escape) {
    close();
  } else if (auto* focused = qobject_cast<QAbstractButton*>(focusWidget()); enter && focused) {
    focused->click();
  } else {
    QFrame::keyPressEvent(event);
  }
}

void ColourPalette::ChooseOther() {
  const HWND button = button_;
  const CBCGPColorButton* owner = ColourButton(FindPeer(button));
  close();
  if (owner == nullptr) return;
  const QPointer<QColorDialog> dialog =
      new QColorDialog(ToQt(owner->GetColor()), FindPeer(button)->widget->window());
  dialog->setOption(QColorDialog::DontUseNativeDialog);
  dialog->setWindowTitle(ToQt(owner->OtherCaption().Str()));
  const bool chosen = dialog->exec() == QDialog::Accepted;
  if (dialog.isNull()) return;  // The window it belonged to has gone.
  const COLORREF colour = FromQt(dialog->selectedColor());
  delete dialog;
  if (chosen) Choose(button, colour);
}

void ColourPalette::Choose(HWND button, COLORREF colour) {
  const Peer* peer = FindPeer(button);
  CBCGPColorButton* owner = ColourButton(peer);
  if (owner == nullptr) return;
  owner->SetColor(colour);
  NotifyCommand(*peer, BN_CLICKED);
}
