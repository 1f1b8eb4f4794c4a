#include "host/drive/tree_nodes.h"

#include <QJsonArray>

#include "host/drive/control_finder.h"
#include "host/drive/describe.h"
#include "host/drive/input.h"
#include "host/drive/request_error.h"
#include "host/drive/window_stack.h"
#include "ifc/config_entry.h"
#include "platform/qt/tree_peer.h"

namespace {

struct Node {
  QTreeWidgetItem* item;
  int level;
};

void Collect(QTreeWidgetItem* item, int level, QList<Node>& nodes) {
  nodes << Node{item, level};
  for (int i = 0; i < item->childCount(); ++i) Collect(item->child(i), level + 1, nodes);
}

QList<Node> NodesOf(const QTreeWidget& tree) {
  QList<Node> nodes;
  for (int i = 0; i < tree.topLevelItemCount(); ++i) Collect(tree.topLevelItem(i), 0, nodes);
  return nodes;
}

// The dialog keeps with every row the entry that the row stands for.
int PageOf(const QTreeWidgetItem* item) {
  const auto data = static_cast<quintptr>(item->data(0, TreeDataRole).toULongLong());
  auto* entry = reinterpret_cast<INTERNAL_IFC::IConfigEntry*>(data);
  return entry != nullptr ? entry->GetPageId() : -1;
}

QJsonObject DescribeNode(const Node& node, int row, const QTreeWidgetItem* selected) {
  return {{"row", row},
          {"level", node.level},
          {"title", node.item->text(0)},
          {"page", PageOf(node.item)},
          {"image", node.item->data(0, TreeImageRole).toInt()},
          {"expanded", node.item->isExpanded()},
          {"selected", node.item == selected}};
}

QTreeWidgetItem* SelectedItem(const QTreeWidget& tree) {
  const QList<QTreeWidgetItem*> selected = tree.selectedItems();
  return selected.isEmpty() ? nullptr : selected.front();
}

void ClickNode(QTreeWidget& tree, QTreeWidgetItem* item) {
  for (const QTreeWidgetItem* parent = item->parent(); parent != nullptr;
       parent = parent->parent()) {
    if (parent->isExpanded()) continue;
    throw RequestError(QStringLiteral("The node \"%1\" is inside the collapsed node \"%2\".")
                           .arg(item->text(0), parent->text(0)));
  }
  tree.scrollToItem(item);
  ClickAt(tree.viewport(), tree.visualItemRect(item).center());
}

}  // namespace

QTreeWidget& FindTree(const WindowStack& windows) {
  QWidget* dialog = TopDialog(windows);
  QList<QTreeWidget*> trees;
  for (QWidget* control : ControlsOf(dialog)) {
    if (auto* tree = qobject_cast<QTreeWidget*>(control)) trees << tree;
  }
  if (trees.size() == 1) return *trees.front();
  throw RequestError(QStringLiteral("%1 has %2 trees.").arg(NameWindow(dialog)).arg(trees.size()));
}

QJsonObject DescribeTree(const QTreeWidget& tree) {
  const QList<Node> nodes = NodesOf(tree);
  QJsonArray descriptions;
  for (int row = 0; row < nodes.size(); ++row) {
    descriptions << DescribeNode(nodes[row], row, SelectedItem(tree));
  }
  const int height = nodes.isEmpty() ? 0 : tree.visualItemRect(nodes.front().item).height();
  return {{"imageSize", tree.iconSize().width()}, {"rowHeight", height}, {"nodes", descriptions}};
}

void SelectPage(QTreeWidget& tree, int page) {
  QStringList pages;
  for (const Node& node : NodesOf(tree)) {
    if (PageOf(node.item) == page) return ClickNode(tree, node.item);
    pages << QString::number(PageOf(node.item));
  }
  throw RequestError(QStringLiteral("No node of the tree has the page %1; the pages are %2.")
                         .arg(page)
                         .arg(pages.join(QStringLiteral(", "))));
}

void SelectRow(QTreeWidget& tree, int row) {
  const QList<Node> nodes = NodesOf(tree);
  if (row >= 0 && row < nodes.size()) return ClickNode(tree, nodes[row].item);
  throw RequestError(
      QStringLiteral("There is no row %1 in the tree; it has %2 rows.").arg(row).arg(nodes.size()));
}

int SelectedRow(const QTreeWidget& tree) {
  const QTreeWidgetItem* selected = SelectedItem(tree);
  const QList<Node> nodes = NodesOf(tree);
  for (int row = 0; row < nodes.size(); ++row) {
    if (nodes[row].item == selected) return row;
  }
  return -1;
}
