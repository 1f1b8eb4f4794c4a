#include "platform/qt/button_peer.h"

#include <QGroupBox>

#include "platform/qt/button_widgets.h"
#include "platform/qt/control_parts.h"

namespace {

constexpr const char* kRadioGroupProperty = "radioGroup";

QWidget* MakeGroupBox(QWidget* parent) {
  auto* box = new QGroupBox(parent);
  // The controls inside it are its siblings: it lies below them and takes no clicks from them.
  box->setAttribute(Qt::WA_TransparentForMouseEvents);
  box->lower();
  return box;
}

QWidget* MakePushButton(DWORD style, QWidget* parent) {
  auto* button = new PushButtonWidget(parent);
  button->setDefault((style & BS_TYPEMASK) == BS_DEFPUSHBUTTON);
  return button;
}

QWidget* MakeRadioButton(DWORD style, QWidget* parent) {
  auto* button = new RadioButtonWidget(style, parent);
  // The groups of a template are not those of the parent widget.
  button->setAutoExclusive(false);
  if ((style & BS_TYPEMASK) == BS_AUTORADIOBUTTON) RadioGroup(parent).addButton(button);
  return button;
}

}  // namespace

QButtonGroup& RadioGroup(QWidget* parent) {
  auto* group = parent->property(kRadioGroupProperty).value<QButtonGroup*>();
  if (group == nullptr) {
    group = new QButtonGroup(parent);
    parent->setProperty(kRadioGroupProperty, QVariant::fromValue(group));
  }
  return *group;
}

void EndRadioGroup(QWidget* parent) { parent->setProperty(kRadioGroupProperty, QVariant()); }

ButtonPeer::ButtonPeer(DWORD controlStyle, const std::wstring& text, QWidget* parent) {
  switch (controlStyle & BS_TYPEMASK) {
    case BS_CHECKBOX:
    case BS_AUTOCHECKBOX:
    case BS_3STATE:
    case BS_AUTO3STATE:
      kind = ControlKind::Check;
      widget = new CheckBoxWidget(controlStyle, parent);
      break;
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON:
      kind = ControlKind::Radio;
      widget = MakeRadioButton(controlStyle, parent);
      break;
    case BS_GROUPBOX:
      kind = ControlKind::Frame;
      widget = MakeGroupBox(parent);
      break;
    default:
      kind = ControlKind::Push;
      widget = MakePushButton(controlStyle, parent);
      break;
  }
  ButtonPeer::SetText(text);
  if (QAbstractButton* button = Button()) {
    QObject::connect(button, &QAbstractButton::clicked, button, [button] {
      if (auto* peer = PeerOf<ButtonPeer>(button)) peer->OnClicked();
    });
  }
}

void ButtonPeer::SetText(const std::wstring& text) {
  text_ = text;
  if (QAbstractButton* button = Button()) return button->setText(ToQt(text));
  static_cast<QGroupBox&>(*widget).setTitle(ToQt(text));
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
