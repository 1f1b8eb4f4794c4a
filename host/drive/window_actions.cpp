#include "host/drive/window_actions.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QPixmap>

#include "host/drive/describe.h"
#include "host/drive/input.h"
#include "host/drive/picker_actions.h"
#include "host/drive/request.h"
#include "host/drive/request_error.h"
#include "host/drive/window_stack.h"

namespace {

template <class Window>
Window& TopAs(const WindowStack& windows, const char* what) {
  QWidget* top = TopWindow(windows);
  if (auto* window = qobject_cast<Window*>(top)) return *window;
  throw RequestError(
      QStringLiteral("The top window is %1, not %2.").arg(NameWindow(top), QLatin1String(what)));
}

}  // namespace

QWidget* TopWindow(const WindowStack& windows) {
  QWidget* top = windows.Top();
  if (top == nullptr) throw RequestError(QStringLiteral("No window is open."));
  return top;
}

void PressButton(const WindowStack& windows, const QString& button) {
  const auto& box = TopAs<QMessageBox>(windows, "a message box");
  QStringList names;
  for (QAbstractButton* candidate : box.buttons()) {
    names << PlainText(candidate->text());
    if (names.back() == button) return ClickAt(candidate, candidate->rect().center());
  }
  throw RequestError(QStringLiteral("The message box has no button \"%1\"; it has %2.")
                         .arg(button, NearCandidates(button, names)));
}

void Dismiss(const WindowStack& windows) {
  QWidget* top = TopWindow(windows);
  const bool dismissed = qobject_cast<QMenu*>(top) != nullptr ||
                         qobject_cast<QMessageBox*>(top) != nullptr || IsProgress(top) ||
                         IsPicker(top);
  if (!dismissed) {
    throw RequestError(
        QStringLiteral("The top window is %1, which is not dismissed.").arg(NameWindow(top)));
  }
  PressKey(top, Qt::Key_Escape);
}

void ChooseFromMenu(const WindowStack& windows, int command) {
  auto& menu = TopAs<QMenu>(windows, "a popup menu");
  QStringList commands;
  for (QAction* action : menu.actions()) {
    if (action->isSeparator()) continue;
    commands << QString::number(action->data().toInt());
    if (action->data().toInt() != command) continue;
    if (!action->isEnabled()) {
      throw RequestError(
          QStringLiteral("A person cannot choose command %1: it is disabled.").arg(command));
    }
    return ClickAt(&menu, menu.actionGeometry(action).center());
  }
  throw RequestError(QStringLiteral("The menu has no command %1; it has %2.")
                         .arg(command)
                         .arg(NearCandidates(QString::number(command), commands)));
}

void PressNamedKey(const WindowStack& windows, const QString& key, QWidget* control) {
  const QKeyCombination combination = ParseKey(key);
  if (combination.key() == Qt::Key_unknown) {
    throw RequestError(QStringLiteral("There is no key \"%1\".").arg(key));
  }
  QWidget* top = TopWindow(windows);
  if (control != nullptr && !control->isAncestorOf(QApplication::focusWidget())) {
    control->setFocus(Qt::TabFocusReason);
  }
  // A dropped list is no window of its own, but has the keyboard.
  QWidget* popup = QApplication::activePopupWidget();
  PressKey(popup != nullptr ? popup : top, combination);
}

void ResizeTop(const WindowStack& windows, QSize size) {
  QWidget* top = TopWindow(windows);
  if (top->minimumSize() == top->maximumSize()) {
    throw RequestError(
        QStringLiteral("A person cannot resize %1: its size is fixed.").arg(NameWindow(top)));
  }
  top->resize(size.expandedTo(top->minimumSize()));
}

void ShootTop(const WindowStack& windows, const QString& file) {
  QWidget* top = TopWindow(windows);
  if (top->grab().save(file, "PNG")) return;
  throw RequestError(QStringLiteral("The picture cannot be written to %1.").arg(file));
}
