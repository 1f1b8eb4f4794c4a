#pragma once

// The page tree of the top dialog.

#include <QJsonObject>

class WindowStack;

/// imageSize, rowHeight and nodes, as the reply to "tree" has them. Throws RequestError when the top
/// window has no tree, or two.
QJsonObject DescribeTree(const WindowStack& windows);

/// Clicks the node with that page number, or at that row, after scrolling it into view. Throws
/// RequestError when there is no such node or a person could not click it.
void SelectPage(const WindowStack& windows, int page);
void SelectRow(const WindowStack& windows, int row);

/// The row that is selected; -1 for none.
int SelectedRow(const WindowStack& windows);
