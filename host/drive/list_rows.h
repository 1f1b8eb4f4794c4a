#pragma once

// The rows of list views. Every action throws RequestError when a person could not do it.

#include <QJsonObject>
#include <QString>

class QWidget;

/// columns, widths and rows, as the reply to "rows" has them.
QJsonObject DescribeRows(QWidget* control);

/// Clicks the check box of a row that is not as wanted.
void CheckRow(QWidget* control, int row, bool on);

/// Clicks a row ("select"), clicks it twice ("double") or asks for its menu ("context"); row -1 is
/// the empty space below the last one.
void ActOnRow(QWidget* control, int row, const QString& action);
