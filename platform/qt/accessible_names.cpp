#include "platform/qt/accessible_names.h"

#include <QLabel>

namespace {

/// Whether the window text is what the user enters, which names nothing.
bool TextIsContent(const Peer& control) {
  return control.kind == ControlKind::Edit || control.kind == ControlKind::Combo;
}

bool NamesOthers(const Peer& control) {
  return control.kind == ControlKind::Label || control.kind == ControlKind::Check ||
         control.kind == ControlKind::Radio;
}

/// The text without the marks of keys and without the colon that leads to the control.
QString SpokenText(const Peer& control) {
  const QString text = ToQt(control.Text());
  const bool plain = control.kind == ControlKind::Label && (control.style & SS_NOPREFIX) != 0;
  if (plain) return text.simplified();
  QString spoken;
  for (qsizetype i = 0; i < text.size(); ++i) {
    // A doubled mark stands for the character itself.
    if (text[i] == QLatin1Char('&') && ++i == text.size()) break;
    spoken += text[i];
  }
  spoken = spoken.simplified();
  if (spoken.endsWith(QLatin1Char(':'))) spoken.chop(1);
  return spoken.trimmed();
}

bool HasKey(const Peer& label) {
  QString text = ToQt(label.Text());
  return text.remove(QLatin1String("&&")).contains(QLatin1Char('&'));
}

/// A label with a key that no control follows belongs to the first control, where the Tab key goes
/// on to. The text of such a label; empty when there is none.
QString TextAroundTheEnd(const Peer& dialog) {
  for (std::size_t i = dialog.children.size(); i-- > 0;) {
    const Peer* last = FindPeer(dialog.children[i].window);
    if (last == nullptr) continue;
    if (IsInteractive(*last)) break;
    if (last->kind == ControlKind::Label && HasKey(*last)) return SpokenText(*last);
  }
  return {};
}

std::size_t PlaceIn(const Peer& dialog, HWND control) {
  std::size_t place = 0;
  while (place < dialog.children.size() && dialog.children[place].window != control) ++place;
  return place;
}

/// Whether a text ends the search for a name: that of a box, or of a label whose key leads on.
bool IsFinal(const Peer& control) { return IsInteractive(control) || HasKey(control); }

/// Of the labels right before the place the last one with a key, or else the last one.
QString TextBefore(const Peer& dialog, std::size_t place) {
  QString nearest;
  while (place-- > 0) {
    const Peer* before = FindPeer(dialog.children[place].window);
    if (before == nullptr) continue;
    if (!nearest.isEmpty() && IsInteractive(*before)) break;
    QString text = NamesOthers(*before) ? SpokenText(*before) : QString();
    if (text.isEmpty()) continue;
    if (IsFinal(*before)) return text;
    if (nearest.isEmpty()) nearest = text;
  }
  return nearest.isEmpty() ? TextAroundTheEnd(dialog) : nearest;
}

void Name(const Peer& control, const QString& before) {
  if (control.widget == nullptr || !IsInteractive(control)) return;
  QString own = ToQt(control.spokenName);
  if (own.isEmpty() && !TextIsContent(control)) own = SpokenText(control);
  const QString& name = own.isEmpty() ? before : own;
  if (control.widget->accessibleName() != name) control.widget->setAccessibleName(name);
}

/// The first control from that place on that takes the focus; null when there is none.
QWidget* FirstStop(const Peer& dialog, std::size_t place) {
  for (std::size_t i = place; i < dialog.children.size(); ++i) {
    const Peer* control = FindPeer(dialog.children[i].window);
    if (control != nullptr && (control->style & WS_TABSTOP) != 0 && control->widget != nullptr)
      return control->widget;
  }
  return nullptr;
}

/// Lets the keys of a label lead to the control after it that takes the focus.
void FindBuddy(const Peer& dialog, std::size_t place, const Peer& control, QLabel& label) {
  QWidget* buddy = FirstStop(dialog, place + 1);
  if (buddy == nullptr && HasKey(control)) buddy = FirstStop(dialog, 0);
  if (buddy != nullptr) label.setBuddy(buddy);
}

}  // namespace

void NameControls(const Peer& dialog) {
  QString before = TextAroundTheEnd(dialog);
  bool keyWaits = false;
  for (std::size_t i = 0; i < dialog.children.size(); ++i) {
    const Peer* control = FindPeer(dialog.children[i].window);
    if (control == nullptr || control->kind == ControlKind::Dialog) continue;
    Name(*control, before);
    if (IsInteractive(*control)) keyWaits = false;
    QString text = NamesOthers(*control) ? SpokenText(*control) : QString();
    if (!text.isEmpty() && (!keyWaits || IsFinal(*control))) {
      before = text;
      keyWaits = !IsInteractive(*control) && HasKey(*control);
    }
    if (control->kind == ControlKind::Label)
      if (auto* label = qobject_cast<QLabel*>(control->widget))
        FindBuddy(dialog, i, *control, *label);
  }
}

void UpdateAccessibleName(const Peer& control) {
  const Peer* dialog = FindPeer(control.parent);
  if (dialog == nullptr || dialog->namesLater) return;
  Name(control, TextBefore(*dialog, PlaceIn(*dialog, control.handle)));
}

void UpdateNamesAfter(const Peer& changed) {
  UpdateAccessibleName(changed);
  const Peer* dialog = FindPeer(changed.parent);
  if (dialog == nullptr || dialog->namesLater || !NamesOthers(changed)) return;
  const std::size_t place = PlaceIn(*dialog, changed.handle);
  for (std::size_t i = place + 1; i < dialog->children.size(); ++i) {
    const Peer* control = FindPeer(dialog->children[i].window);
    if (control == nullptr) continue;
    Name(*control, TextBefore(*dialog, i));
    if (NamesOthers(*control) && IsFinal(*control) && !SpokenText(*control).isEmpty()) return;
  }
}

void SetAccessibleName(HWND window, const CString& name) {
  Peer* control = FindPeer(window);
  if (control == nullptr) return;
  control->spokenName = name.Str();
  UpdateAccessibleName(*control);
}
