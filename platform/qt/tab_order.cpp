#include "platform/qt/tab_order.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <vector>

namespace {

void SetTabStop(QWidget& widget, bool stops) {
  const int policy = widget.focusPolicy();
  const int wanted = stops ? policy | Qt::TabFocus : policy & ~Qt::TabFocus;
  if (wanted != policy) widget.setFocusPolicy(static_cast<Qt::FocusPolicy>(wanted));
}

std::vector<const Peer*> Children(const Peer& dialog) {
  std::vector<const Peer*> children;
  for (const ChildWindow& child : dialog.children) {
    const Peer* peer = FindPeer(child.window);
    if (peer != nullptr && peer->widget != nullptr) children.push_back(peer);
  }
  return children;
}

void Collect(const Peer& dialog, std::vector<QWidget*>& chain);

void CollectPages(const std::vector<const Peer*>& children, std::vector<QWidget*>& chain) {
  for (const Peer* child : children)
    if (child->kind == ControlKind::Dialog) Collect(*child, chain);
}

void Collect(const Peer& dialog, std::vector<QWidget*>& chain) {
  const std::vector<const Peer*> children = Children(dialog);
  bool pagesDone = false;
  for (const Peer* child : children) {
    if (!pagesDone && child->kind == ControlKind::Push) {
      CollectPages(children, chain);
      pagesDone = true;
    }
    if (IsInteractive(*child)) chain.push_back(child->widget);
  }
  if (!pagesDone) CollectPages(children, chain);
}

const Peer* TopDialog(HWND window) {
  const Peer* peer = FindPeer(window);
  while (peer != nullptr && FindPeer(peer->parent) != nullptr) peer = FindPeer(peer->parent);
  return peer;
}

/// Tab stops at the checked button of a group alone; while none is checked, where the template
/// says.
void StopAtChecked(QButtonGroup& group) {
  for (QAbstractButton* button : group.buttons()) {
    const Peer* peer = FindPeer(button);
    if (peer == nullptr) continue;
    const bool byTemplate = (peer->style & WS_TABSTOP) != 0;
    const bool stops = group.checkedButton() != nullptr ? button->isChecked() : byTemplate;
    SetTabStop(*button, stops);
  }
}

QButtonGroup* MakeGroup(QWidget* parent) {
  auto* group = new QButtonGroup(parent);
  QObject::connect(group, &QButtonGroup::buttonToggled, group, [group] { StopAtChecked(*group); });
  return group;
}

}  // namespace

void ArrangeTabOrder(HWND window) {
  const Peer* peer = FindPeer(window);
  const Peer* top = TopDialog(window);
  if (top == nullptr || peer->widget == nullptr) return;
  const QWidget* placed = peer->widget;
  const auto moves = [placed](const QWidget* widget) {
    return widget == placed || placed->isAncestorOf(widget);
  };
  std::vector<QWidget*> chain;
  Collect(*top, chain);
  // The chain is a ring, so that what comes first has a place as well: behind the last.
  QWidget* before = chain.empty() || moves(chain.back()) ? nullptr : chain.back();
  for (QWidget* widget : chain) {
    if (before != nullptr && moves(widget)) QWidget::setTabOrder(before, widget);
    before = widget;
  }
}

void ApplyTabStop(const Peer& control) {
  if (!IsInteractive(control) || control.widget == nullptr) return;
  SetTabStop(*control.widget, (control.style & WS_TABSTOP) != 0);
}

void GroupRadioButtons(const Peer& dialog) {
  QButtonGroup* group = nullptr;
  for (const Peer* child : Children(dialog)) {
    if ((child->style & WS_GROUP) != 0) group = nullptr;
    if (child->kind != ControlKind::Radio) continue;
    if (group == nullptr) group = MakeGroup(dialog.widget);
    if (auto* button = qobject_cast<QAbstractButton*>(child->widget)) group->addButton(button);
  }
}

QWidget* FirstTabStop(const Peer& dialog) {
  std::vector<QWidget*> chain;
  Collect(dialog, chain);
  for (QWidget* widget : chain) {
    const bool stops = (widget->focusPolicy() & Qt::TabFocus) != 0;
    if (stops && widget->isEnabledTo(dialog.widget) && widget->isVisibleTo(dialog.widget))
      return widget;
  }
  return nullptr;
}
