#pragma once

// What a person does with one control. Every action throws RequestError when a person could not do
// it.

#include <QPointer>
#include <QString>
#include <functional>
#include <optional>

class QWidget;
class WindowStack;

/// Checks that a person can reach the control: shown, enabled, and nothing in front of it.
void CheckUsable(const WindowStack& windows, QWidget* control);

void ClickControl(QWidget* control);
void TypeInto(QWidget* control, const QString& text);
/// As TypeInto, for a field that has the focus and need not be a control of a dialog. A line
/// end is typed as Enter in a field of several lines, and left out elsewhere.
void TypeKeys(QWidget* field, const QString& text);
/// `index` or `text` names the row.
void PickRow(QWidget* control, std::optional<int> index, const QString& text);
void SlideTo(QWidget* control, int value);
/// Chooses a COLORREF in a colour button: a standard colour in its palette, any other in the full
/// colour dialog behind it.
void ChooseColour(QWidget* control, int value);

/// Throws RequestError unless the control is of one of these kinds (between blanks).
void CheckKind(const QWidget* control, const QString& kinds, const QString& verb);
