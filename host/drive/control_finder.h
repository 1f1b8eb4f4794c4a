#pragma once

// Dialogs and their controls, by their numbers.

#include <QList>
#include <QString>

class QWidget;
struct Request;
class WindowStack;

/// Whether the widget is a dialog or a page.
bool IsDialog(const QWidget* widget);
bool IsControl(const QWidget* widget);
int TemplateNumber(const QWidget* widget);
int ControlNumber(const QWidget* widget);
/// "label", "check", ...; empty for a widget that is no control.
QString KindOf(const QWidget* widget);

/// The dialog or page that the control belongs to, or the widget itself when it is one; null for a
/// widget of another window.
QWidget* DialogOf(QWidget* widget);
/// The page shown in the dialog; null when it shows none.
QWidget* ShownPage(const QWidget* dialog);
/// The controls of the dialog itself, in template order.
QList<QWidget*> ControlsOf(const QWidget* dialog);

/// The dialog or page with that template number. Throws RequestError when none is open, or two.
QWidget* FindDialog(const WindowStack& windows, int number);
/// The control that the request names. Throws RequestError when there is none, or more than one.
QWidget* FindControl(const WindowStack& windows, const Request& request);
/// The top window when it is a dialog. Throws RequestError otherwise.
QWidget* TopDialog(const WindowStack& windows);

/// For a person: "control 5105 (radio) of template 5553".
QString NameControl(const QWidget* control);
