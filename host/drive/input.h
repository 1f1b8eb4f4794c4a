#pragma once

// A person's mouse and keyboard, one event at a time, on the path that those of the window system
// take.

#include <QKeyCombination>
#include <QPoint>
#include <QString>

class QWidget;

/// Moves the pointer to a place of the widget and presses and releases the left button there. The
/// widget may be gone afterwards; the release is left out when its window goes at the press.
void ClickAt(QWidget* widget, const QPoint& place);
/// The same twice, quickly.
void DoubleClickAt(QWidget* widget, const QPoint& place);
/// The same with the right button.
void RightClickAt(QWidget* widget, const QPoint& place);

/// Presses and releases a key in the window: modifiers first, then the key with the text it gives.
void PressKey(QWidget* window, QKeyCombination key);

/// Types one character in the window.
void PressCharacter(QWidget* window, const QString& character);

/// The key with that name, such as "Enter", "F2" or "Ctrl+F". Qt::Key_unknown when there is none.
QKeyCombination ParseKey(const QString& name);
