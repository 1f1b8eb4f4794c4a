#pragma once

// What a person does with a file or folder picker. Every action throws RequestError when it does
// not fit.

#include <QJsonObject>
#include <QStringList>

class QWidget;
class WindowStack;

bool IsPicker(const QWidget* window);
QJsonObject DescribePicker(const QWidget& picker);

/// The text to type into the picker on top so that it picks these paths, of either style.
QString PickerText(const WindowStack& windows, const QStringList& paths);
/// Clicks into the picker's field of names, types the text and confirms. A picker that refuses it
/// tells so in a message box.
void ChooseInPicker(const WindowStack& windows, const QString& text);
