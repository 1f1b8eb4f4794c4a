#include "host/drive/picker_actions.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>

#include "host/drive/control_actions.h"
#include "host/drive/describe.h"
#include "host/drive/input.h"
#include "host/drive/request_error.h"
#include "host/drive/window_actions.h"
#include "platform/path_map.h"

namespace {

QFileDialog& TopPicker(const WindowStack& windows) {
  QWidget* top = TopWindow(windows);
  if (auto* picker = qobject_cast<QFileDialog*>(top)) return *picker;
  throw RequestError(QStringLiteral("The top window is %1, not a picker.").arg(NameWindow(top)));
}

QString ModeOf(const QWidget& picker) { return picker.property("pickerMode").toString(); }

QString ToNative(const QString& path) {
  const std::wstring native = NativePath(path.toStdWString());
  if (!native.empty()) return QString::fromStdWString(native);
  throw RequestError(QStringLiteral("The path \"%1\" has no place on this system.").arg(path));
}

}  // namespace

bool IsPicker(const QWidget* window) { return qobject_cast<const QFileDialog*>(window) != nullptr; }

QJsonObject DescribePicker(const QWidget& picker) {
  return {{"kind", "picker"},
          {"mode", ModeOf(picker)},
          {"start", picker.property("pickerStart").toString()},
          {"filter", picker.property("pickerFilter").toString()}};
}

QString PickerText(const WindowStack& windows, const QStringList& paths) {
  const bool several = ModeOf(TopPicker(windows)) == "folders";
  if (paths.isEmpty() || (!several && paths.size() > 1)) {
    throw RequestError(QStringLiteral("The picker takes %1, not %2 paths.")
                           .arg(several ? "one path or more" : "one path")
                           .arg(paths.size()));
  }
  if (!several) return ToNative(paths.front());
  QStringList quoted;
  for (const QString& path : paths) quoted << '"' + ToNative(path) + '"';
  return quoted.join(' ');
}

void ChooseInPicker(const WindowStack& windows, const QString& text) {
  QFileDialog& picker = TopPicker(windows);
  auto* field = picker.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  if (field == nullptr) {
    throw RequestError(QStringLiteral("The picker has no field of names to type into."));
  }
  // The picker reads the field only while that has the focus.
  ClickAt(field, field->rect().center());
  TypeKeys(field, text);
  // The list of completions would take the key that confirms.
  if (QWidget* completions = QApplication::activePopupWidget()) {
    PressKey(completions, Qt::Key_Escape);
  }
  PressKey(&picker, Qt::Key_Return);
}
