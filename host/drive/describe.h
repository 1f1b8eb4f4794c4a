#pragma once

// Windows and controls, described for a reply.

#include <QJsonArray>
#include <QJsonObject>

class QWidget;
class WindowStack;

/// Whether the window shows the progress of a task.
bool IsProgress(const QWidget* window);
QJsonObject DescribeWindow(const QWidget* window);
QJsonArray DescribeWindows(const WindowStack& windows);
QJsonObject DescribeControl(QWidget* control);
QJsonArray DescribeControls(const QList<QWidget*>& controls);

/// For a person: `the dialog "Settings" (template 5526)`.
QString NameWindow(const QWidget* window);
/// A text without its mnemonic marks.
QString PlainText(const QString& text);
