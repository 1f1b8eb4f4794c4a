#pragma once

// What a person does with the top window. Every action throws RequestError when it does not fit.

#include <QSize>
#include <QString>

class QWidget;
class WindowStack;

/// Presses a button of the message box on top, by its text.
void PressButton(const WindowStack& windows, const QString& button);
/// Cancels the popup menu, message box, picker or progress window on top.
void Dismiss(const WindowStack& windows);
void ChooseFromMenu(const WindowStack& windows, int command);
/// Presses a key in the top window, after giving the focus to `control` unless it is null.
void PressNamedKey(const WindowStack& windows, const QString& key, QWidget* control);
void ResizeTop(const WindowStack& windows, QSize size);
void ShootTop(const WindowStack& windows, const QString& file);

/// The top window. Throws RequestError when none is open.
QWidget* TopWindow(const WindowStack& windows);
