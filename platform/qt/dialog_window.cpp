#include "platform/qt/dialog_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>

namespace {

Peer* FindControl(const Peer& dialog, int id) {
  for (const ChildWindow& child : dialog.children)
    if (child.id == id) return FindPeer(child.window);
  return nullptr;
}

bool IsPressed(const Peer& control) {
  return control.kind == ControlKind::Push || control.kind == ControlKind::Image ||
         control.kind == ControlKind::Colour;
}

/// Presses the button of that number as a click does. A dialog without the button gets the command
/// all the same; one whose button is disabled does not.
void Press(const Peer& dialog, int id) {
  const Peer* control = FindControl(dialog, id);
  if (control == nullptr) {
    SendFromToolkit(dialog.handle, WM_COMMAND, static_cast<WPARAM>(id), 0);
  } else if (auto* button = qobject_cast<QAbstractButton*>(control->widget)) {
    button->click();
  }
}

}  // namespace

void DialogPeer::SetText(const std::wstring& newText) {
  Peer::SetText(newText);
  widget->setWindowTitle(ToQt(newText));
}

QRect DialogPixels(const DialogPeer& dialog, int x, int y, int cx, int cy) {
  return {MulDiv(x, dialog.baseX, 4), MulDiv(y, dialog.baseY, 8), MulDiv(cx, dialog.baseX, 4),
          MulDiv(cy, dialog.baseY, 8)};
}

void SetDefaultControl(DialogPeer& dialog, int id) {
  dialog.defaultId = id;
  const Peer* control = FindControl(dialog, id);
  if (control == nullptr) return;
  if (auto* button = qobject_cast<QPushButton*>(control->widget)) button->setDefault(true);
}

void DialogWindow::reject() {
  if (const Peer* peer = FindPeer(this)) Press(*peer, IDCANCEL);
}

void DialogWindow::keyPressEvent(QKeyEvent* event) {
  const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == 0;
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (plain && enter) {
    PressDefault();
  } else if (plain && event->key() == Qt::Key_Escape) {
    reject();
  } else {
    event->ignore();
  }
}

void DialogWindow::PressDefault() {
  const auto* peer = dynamic_cast<DialogPeer*>(FindPeer(this));
  if (peer == nullptr) return;
  // A push button with the focus is the one that Enter presses.
  const Peer* focus = FindPeerAround(QApplication::focusWidget());
  auto* button = focus != nullptr && IsPressed(*focus)
                     ? qobject_cast<QAbstractButton*>(focus->widget.data())
                     : nullptr;
  if (button != nullptr) {
    button->click();
  } else {
    Press(*peer, peer->defaultId);
  }
}
