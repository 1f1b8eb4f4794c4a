#include "platform/qt/button_peer.h"

#include <QButtonGroup>
#include <QGroupBox>

#include "platform/controls.h"
#include "platform/qt/button_widgets.h"
#include "platform/qt/control_parts.h"

namespace {

QWidget* MakeGroupBox(QWidget* parent) {
  auto* box = new QGroupBox(parent);
  // The controls inside it are its siblings, which must get their clicks.
  box->setAttribute(Qt::WA_TransparentForMouseEvents);
  return box;
}

QWidget* MakePushButton(DWORD style, QWidget* parent) {
  auto* button = new PushButtonWidget(parent);
  button->setDefault((style & BS_TYPEMASK) == BS_DEFPUSHBUTTON);
  return button;
}

QWidget* MakeRadioButton(DWORD style, QWidget* parent) {
  auto* button = new RadioButtonWidget(style, parent);
  // The groups are those of the template, not all radio buttons of the parent.
  button->setAutoExclusive(false);
  return button;
}

}  // namespace

ButtonPeer::ButtonPeer(DWORD controlStyle, const std::wstring& initialText, QWidget* host) {
  switch (controlStyle & BS_TYPEMASK) {
    case BS_CHECKBOX:
    case BS_AUTOCHECKBOX:
    case BS_3STATE:
    case BS_AUTO3STATE:
      kind = ControlKind::Check;
      widget = new CheckBoxWidget(controlStyle, host);
      break;
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON:
      kind = ControlKind::Radio;
      widget = MakeRadioButton(controlStyle, host);
      break;
    case BS_GROUPBOX:
      kind = ControlKind::Frame;
      widget = MakeGroupBox(host);
      break;
    default:
      kind = ControlKind::Push;
      widget = MakePushButton(controlStyle, host);
      break;
  }
  ButtonPeer::SetText(initialText);
  if (QAbstractButton* button = Button()) {
    QObject::connect(button, &QAbstractButton::clicked, button, [button] {
      if (auto* peer = PeerOf<ButtonPeer>(button)) peer->OnClicked();
    });
  }
}

void ButtonPeer::SetText(const std::wstring& newText) {
  text = newText;
  if (QAbstractButton* button = Button()) return button->setText(ToQt(newText));
  static_cast<QGroupBox&>(*widget).setTitle(ToQt(newText));
}

int ButtonPeer::GetCheck() const {
  if (auto* box = qobject_cast<QCheckBox*>(widget.data())) return CheckOf(box->checkState());
  if (kind == ControlKind::Radio) return Button()->isChecked() ? BST_CHECKED : BST_UNCHECKED;
  return pushCheck_;
}

void ButtonPeer::SetCheck(int check) {
  if (auto* box = qobject_cast<QCheckBox*>(widget.data())) {
    box->setCheckState(CheckState(check, box->isTristate()));
  } else if (kind == ControlKind::Radio) {
    SetRadio(check != BST_UNCHECKED);
  } else {
    pushCheck_ = check;
    widget->update();
  }
}

void ButtonPeer::SetRadio(bool checked) {
  QButtonGroup* group = Button()->group();
  // An exclusive group would keep its last checked button checked.
  if (group != nullptr && !checked) group->setExclusive(false);
  Button()->setChecked(checked);
  if (group != nullptr) group->setExclusive(true);
}

void ButtonPeer::SetImage(const QPixmap& picture, int index) {
  image_ = picture;
  imageIndex_ = index;
  widget->setProperty("imageIndex", index);
  SetPeerKind(*this, ControlKind::Image);
  widget->update();
}

void ButtonPeer::OnClicked() {
  if (opener_ != nullptr) return opener_(handle);
  NotifyCommand(*this, BN_CLICKED);
}
