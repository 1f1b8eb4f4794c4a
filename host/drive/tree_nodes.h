#pragma once

// The page tree of the top dialog.

#include <QJsonObject>

class QTreeWidget;
class WindowStack;

/// The tree of the top window. Throws RequestError when it has none, or two.
QTreeWidget& FindTree(const WindowStack& windows);

/// imageSize, rowHeight and nodes, as the reply to "tree" has them.
QJsonObject DescribeTree(const QTreeWidget& tree);

/// Clicks the node with that page number, or at that row, after scrolling it into view. Throws
/// RequestError when there is no such node or it is out of sight.
void SelectPage(QTreeWidget& tree, int page);
void SelectRow(QTreeWidget& tree, int row);

/// The row that is selected; -1 for none.
int SelectedRow(const QTreeWidget& tree);
