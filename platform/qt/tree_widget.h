#pragma once

// The widget of a tree: one column whose selection and expansion the peer has a say in. Private to
// the platform layer.

#include <QItemSelectionModel>
#include <QTreeWidget>

/// A selection that is always the current row, and that only the peer moves, whoever asks for it:
/// mouse, keys, typing ahead or the program.
class TreeSelectionModel final : public QItemSelectionModel {
 public:
  explicit TreeSelectionModel(QTreeWidget& tree);

  void setCurrentIndex(const QModelIndex& index, SelectionFlags command) override;
  /// Views also select without moving the current row; here nothing does.
  void select(const QModelIndex& index, SelectionFlags command) override;
  void select(const QItemSelection& selection, SelectionFlags command) override;
  void clear() override;

  /// Moves the selection without asking or telling anybody.
  void Move(const QModelIndex& index);

 private:
  QTreeWidget& tree_;
  friend class TreeWidget;
  bool open_ = false;    ///< The view's requests are let through.
  bool closed_ = false;  ///< The view's requests are ignored.
};

class TreeWidget final : public QTreeWidget {
 public:
  explicit TreeWidget(QWidget* parent);

  /// Selects an item, or none, without asking or telling anybody.
  void MoveSelection(QTreeWidgetItem* item);

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool IsOnExpander(const QTreeWidgetItem& item, const QPoint& place) const;
  bool OnTreeKey(int key);
  void Toggle(QTreeWidgetItem* item, bool expand);

  TreeSelectionModel* selection_;
};
