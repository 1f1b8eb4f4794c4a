#include "host/drive/describe.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProgressDialog>
#include <QRadioButton>
#include <QSlider>
#include <algorithm>

#include "host/drive/control_finder.h"
#include "host/drive/picker_actions.h"
#include "host/drive/window_stack.h"
#include "platform/qt/peer.h"

namespace {

QJsonArray ToArray(const QRect& rect) { return {rect.x(), rect.y(), rect.width(), rect.height()}; }

QJsonArray ToArray(const QStringList& texts) { return QJsonArray::fromStringList(texts); }

QString WithPlainLineEnds(std::wstring_view text) {
  return QString::fromWCharArray(text.data(), static_cast<int>(text.size())).replace("\r\n", "\n");
}

HWND HandleOf(const QWidget* widget) {
  const Peer* peer = FindPeer(widget);
  return peer != nullptr ? peer->handle : nullptr;
}

QJsonObject DescribeDialog(const QWidget* dialog) {
  QJsonObject description = {{"kind", "dialog"},
                             {"template", TemplateNumber(dialog)},
                             {"title", dialog->windowTitle()},
                             {"client", QJsonArray{dialog->width(), dialog->height()}}};
  if (const QWidget* page = ShownPage(dialog)) {
    const QRect rect(page->mapTo(dialog, QPoint()), page->size());
    description["page"] = QJsonObject{{"template", TemplateNumber(page)}, {"rect", ToArray(rect)}};
  }
  return description;
}

QJsonObject DescribeMessage(const QMessageBox& box) {
  QList<QAbstractButton*> shown = box.buttons();
  std::sort(shown.begin(), shown.end(),
            [](const QWidget* a, const QWidget* b) { return a->x() < b->x(); });
  QStringList buttons;
  for (const QAbstractButton* button : shown) buttons << PlainText(button->text());
  return {{"kind", "message"},
          {"title", box.windowTitle()},
          {"text", box.text().replace("\r\n", "\n")},
          {"buttons", ToArray(buttons)}};
}

QJsonObject DescribeMenu(const QMenu& menu) {
  QJsonArray items;
  for (const QAction* action : menu.actions()) {
    items << QJsonObject{{"command", action->data().toInt()},
                         {"text", action->text()},
                         {"enabled", action->isEnabled()}};
  }
  return {{"kind", "menu"}, {"items", items}};
}

QJsonObject DescribeCompletion(const QWidget& window) {
  const auto* list = qobject_cast<const QAbstractItemView*>(&window);
  QStringList items;
  for (int row = 0; list != nullptr && row < list->model()->rowCount(); ++row) {
    items << list->model()->index(row, 0).data().toString();
  }
  return {{"kind", "completion"}, {"items", ToArray(items)}};
}

void DescribeCombo(const QComboBox& combo, QJsonObject& description) {
  QStringList items;
  for (int row = 0; row < combo.count(); ++row) items << combo.itemText(row);
  description["items"] = ToArray(items);
  description["index"] = combo.currentIndex();
  description["dropped"] = combo.view()->isVisible();
}

void DescribeListBox(const QListWidget& list, QJsonObject& description) {
  QStringList items;
  for (int row = 0; row < list.count(); ++row) items << list.item(row)->text();
  description["items"] = ToArray(items);
  description["index"] = list.currentRow();
}

void DescribeEdit(const QWidget& control, QJsonObject& description) {
  const auto* lines = qobject_cast<const QPlainTextEdit*>(&control);
  const auto* line = qobject_cast<const QLineEdit*>(&control);
  description["multiline"] = lines != nullptr;
  description["readonly"] =
      lines != nullptr ? lines->isReadOnly() : line != nullptr && line->isReadOnly();
}

// The fields that only controls of some kinds have.
void DescribeKind(const QWidget* control, const QString& kind, QJsonObject& description) {
  if (const auto* box = qobject_cast<const QCheckBox*>(control)) {
    static constexpr int kStates[] = {0, 2, 1};  // Unchecked, partially checked, checked.
    description["checked"] = kStates[box->checkState()];
  } else if (const auto* radio = qobject_cast<const QRadioButton*>(control)) {
    description["checked"] = radio->isChecked() ? 1 : 0;
  } else if (const auto* combo = qobject_cast<const QComboBox*>(control)) {
    DescribeCombo(*combo, description);
  } else if (const auto* list = qobject_cast<const QListWidget*>(control)) {
    DescribeListBox(*list, description);
  } else if (const auto* slider = qobject_cast<const QSlider*>(control)) {
    description["value"] = slider->value();
    description["min"] = slider->minimum();
    description["max"] = slider->maximum();
  } else if (kind == "edit") {
    DescribeEdit(*control, description);
  } else if (kind == "colour") {
    description["colour"] = control->property("colour").toInt();
  } else if (kind == "image") {
    description["image"] = control->property("imageIndex").toInt();
  }
}

bool HasFocus(const QWidget* control) {
  const QWidget* focus = QApplication::focusWidget();
  return focus != nullptr && (focus == control || control->isAncestorOf(focus));
}

}  // namespace

bool IsProgress(const QWidget* window) {
  return qobject_cast<const QProgressDialog*>(window) != nullptr;
}

QString PlainText(const QString& text) {
  QString plain;
  for (qsizetype at = 0; at < text.size(); ++at) {
    if (text[at] == '&' && ++at == text.size()) break;
    plain += text[at];
  }
  return plain;
}

QString NameWindow(const QWidget* window) {
  const QString title = window->windowTitle();
  if (IsDialog(window)) {
    return QStringLiteral("the dialog \"%1\" (template %2)").arg(title).arg(TemplateNumber(window));
  }
  if (const auto* box = qobject_cast<const QMessageBox*>(window)) {
    return QStringLiteral("the message box \"%1\" (%2)").arg(title, box->text().left(200));
  }
  if (qobject_cast<const QMenu*>(window) != nullptr) return QStringLiteral("a popup menu");
  if (IsPicker(window)) return QStringLiteral("the picker \"%1\"").arg(title);
  if (IsProgress(window)) return QStringLiteral("the progress window \"%1\"").arg(title);
  return QStringLiteral("the window \"%1\"").arg(title);
}

QJsonObject DescribeWindow(const QWidget* window) {
  if (IsDialog(window)) return DescribeDialog(window);
  if (const auto* box = qobject_cast<const QMessageBox*>(window)) return DescribeMessage(*box);
  if (const auto* menu = qobject_cast<const QMenu*>(window)) return DescribeMenu(*menu);
  if (IsPicker(window)) return DescribePicker(*window);
  if (IsProgress(window)) return {{"kind", "progress"}, {"title", window->windowTitle()}};
  if (IsCompletion(window)) return DescribeCompletion(*window);
  return {{"kind", "tool"}, {"title", window->windowTitle()}};
}

QJsonArray DescribeWindows(const WindowStack& windows) {
  QJsonArray descriptions;
  for (const QWidget* window : windows.All()) descriptions << DescribeWindow(window);
  return descriptions;
}

QJsonObject DescribeControl(QWidget* control) {
  const QWidget* dialog = DialogOf(control);
  const QString kind = KindOf(control);
  const HWND handle = HandleOf(control);
  const std::wstring tooltip = GetToolTipText(handle);
  QJsonObject description = {
      {"control", ControlNumber(control)},
      {"template", TemplateNumber(dialog)},
      {"kind", kind},
      {"text", WithPlainLineEnds(GetWindowText(handle))},
      {"enabled", control->isEnabled()},
      {"visible", control->isVisible()},
      {"rect", ToArray(QRect(control->mapTo(dialog, QPoint()), control->size()))},
      {"focus", HasFocus(control)},
      {"tooltip", tooltip.empty() ? QJsonValue() : QJsonValue(WithPlainLineEnds(tooltip))}};
  DescribeKind(control, kind, description);
  return description;
}

QJsonArray DescribeControls(const QList<QWidget*>& controls) {
  QJsonArray descriptions;
  for (QWidget* control : controls) descriptions << DescribeControl(control);
  return descriptions;
}
