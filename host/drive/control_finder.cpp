#include "host/drive/control_finder.h"

#include <QVariant>
#include <QWidget>
#include <algorithm>
#include <cstdlib>

#include "host/drive/describe.h"
#include "host/drive/request.h"
#include "host/drive/request_error.h"
#include "host/drive/window_stack.h"

namespace {

QList<QWidget*> OpenDialogs(const WindowStack& windows) {
  QList<QWidget*> dialogs;
  for (QWidget* window : windows.All()) {
    if (IsDialog(window)) dialogs << window;
    for (QWidget* child : window->findChildren<QWidget*>()) {
      if (IsDialog(child) && child->window() == window) dialogs << child;
    }
  }
  return dialogs;
}

QList<QWidget*> WithNumber(const QList<QWidget*>& controls, int number) {
  QList<QWidget*> found;
  for (QWidget* control : controls) {
    if (ControlNumber(control) == number) found << control;
  }
  return found;
}

QString NearControls(int number, QList<QWidget*> controls) {
  std::stable_sort(controls.begin(), controls.end(), [number](QWidget* a, QWidget* b) {
    return std::abs(ControlNumber(a) - number) < std::abs(ControlNumber(b) - number);
  });
  QStringList names;
  for (QWidget* control : controls) {
    if (ControlNumber(control) < 0) continue;
    names << QStringLiteral("%1 (%2)").arg(ControlNumber(control)).arg(KindOf(control));
    if (names.size() == 5) break;
  }
  return names.isEmpty() ? QStringLiteral("none") : names.join(QStringLiteral(", "));
}

// The dialogs to look into, first choice first.
QList<QWidget*> Places(const WindowStack& windows, const Request& request) {
  if (request.Has("template")) return {FindDialog(windows, request.Int("template"))};
  QWidget* dialog = TopDialog(windows);
  QWidget* page = ShownPage(dialog);
  return page != nullptr ? QList<QWidget*>{page, dialog} : QList<QWidget*>{dialog};
}

QWidget* FindByPlace(QWidget* dialog, int place) {
  const QList<QWidget*> controls = ControlsOf(dialog);
  if (place >= 0 && place < controls.size()) return controls[place];
  throw RequestError(QStringLiteral("There is no control at place %1 of template %2; it has %3.")
                         .arg(place)
                         .arg(TemplateNumber(dialog))
                         .arg(controls.size()));
}

}  // namespace

QString KindOf(const QWidget* widget) {
  const QString kind = widget->property("controlKind").toString();
  return kind == QLatin1String("dialog") ? QString() : kind;
}

bool IsControl(const QWidget* widget) { return !KindOf(widget).isEmpty(); }

bool IsDialog(const QWidget* widget) {
  return widget->property("templateNumber").isValid() && !IsControl(widget);
}

int TemplateNumber(const QWidget* widget) { return widget->property("templateNumber").toInt(); }

int ControlNumber(const QWidget* widget) { return widget->property("controlNumber").toInt(); }

QWidget* DialogOf(QWidget* widget) {
  while (widget != nullptr && !IsDialog(widget)) widget = widget->parentWidget();
  return widget;
}

QWidget* ShownPage(const QWidget* dialog) {
  for (QWidget* child : dialog->findChildren<QWidget*>()) {
    if (IsDialog(child) && child->isVisible() && child->window() == dialog->window()) return child;
  }
  return nullptr;
}

QList<QWidget*> ControlsOf(const QWidget* dialog) {
  QList<QWidget*> controls;
  for (QWidget* child : dialog->findChildren<QWidget*>()) {
    if (IsControl(child) && DialogOf(child) == dialog) controls << child;
  }
  std::stable_sort(controls.begin(), controls.end(), [](QWidget* a, QWidget* b) {
    return a->property("templateOrder").toInt() < b->property("templateOrder").toInt();
  });
  return controls;
}

QWidget* FindDialog(const WindowStack& windows, int number) {
  QList<QWidget*> found;
  QStringList open;
  for (QWidget* dialog : OpenDialogs(windows)) {
    if (TemplateNumber(dialog) == number) found << dialog;
    open << QString::number(TemplateNumber(dialog));
  }
  if (found.size() == 1) return found.front();
  throw RequestError(
      found.isEmpty()
          ? QStringLiteral("No dialog or page of template %1 is open; the nearest are %2.")
                .arg(number)
                .arg(NearCandidates(QString::number(number), open))
          : QStringLiteral("%1 dialogs of template %2 are open.").arg(found.size()).arg(number));
}

QWidget* TopDialog(const WindowStack& windows) {
  QWidget* top = windows.Top();
  if (top == nullptr) throw RequestError(QStringLiteral("No window is open."));
  if (IsDialog(top)) return top;
  throw RequestError(QStringLiteral("The top window is %1, not a dialog.").arg(NameWindow(top)));
}

QWidget* FindControl(const WindowStack& windows, const Request& request) {
  const QList<QWidget*> places = Places(windows, request);
  if (request.Has("nth")) return FindByPlace(places.front(), request.Int("nth"));
  const int number = request.Int("control");
  QList<QWidget*> all;
  for (QWidget* place : places) {
    const QList<QWidget*> controls = ControlsOf(place);
    const QList<QWidget*> found = WithNumber(controls, number);
    if (found.size() == 1) return found.front();
    if (found.size() > 1) {
      throw RequestError(
          QStringLiteral("%1 controls of template %2 have the number %3; name one by "
                         "its place with \"nth\".")
              .arg(found.size())
              .arg(TemplateNumber(place))
              .arg(number));
    }
    all << controls;
  }
  throw RequestError(QStringLiteral("There is no control %1 in %2; the nearest are %3.")
                         .arg(number)
                         .arg(NameWindow(places.back()->window()), NearControls(number, all)));
}

QString NameControl(const QWidget* control) {
  return QStringLiteral("control %1 (%2) of template %3")
      .arg(ControlNumber(control))
      .arg(KindOf(control))
      .arg(TemplateNumber(DialogOf(const_cast<QWidget*>(control))));
}
