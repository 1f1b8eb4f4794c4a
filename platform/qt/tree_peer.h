#pragma once

// Tree views. Private to the platform layer.

#include <QHash>
#include <QTreeWidget>

#include "platform/qt/peer.h"

class CImageList;
class TreeWidget;

/// What a tree keeps with each row, beside its text.
enum TreeRole {
  TreeHandleRole = Qt::UserRole,  ///< The row's HTREEITEM as an integer.
  TreeDataRole,                   ///< The row's DWORD_PTR as an integer.
  TreeImageRole,                  ///< Index of the image in the tree's list; -1 for none.
  TreeSelectedImageRole,
  TreeExpandedOnceRole,  ///< The parent has already been asked for leave to expand the row.
};

/// The widget is a QTreeWidget of one column. Handles of rows are never used twice, so that one
/// that outlives its row is recognised.
class TreePeer final : public Peer {
 public:
  TreePeer(DWORD style, const std::wstring& initialText, QWidget* host);

  LRESULT DefaultProcedure(UINT message, WPARAM wParam, LPARAM lParam) override;

  /// Inserts behind the sibling `after`; any other value appends. Null for a stale parent.
  HTREEITEM Insert(const QString& rowText, int image, int selectedImage, HTREEITEM parentRow,
                   HTREEITEM after);
  /// Sends no notification.
  void Clear();
  /// Null for a stale handle.
  QTreeWidgetItem* Find(HTREEITEM row) const;
  /// Null for no row.
  static HTREEITEM HandleOf(const QTreeWidgetItem* item);
  /// The row's item data; 0 for no row.
  DWORD_PTR Data(HTREEITEM row) const;

  HTREEITEM Selected() const;
  /// Asks the parent, moves the selection, and tells the parent. False when the parent refuses or
  /// the handle is stale. Null selects nothing.
  bool Select(HTREEITEM row);
  /// By the program: the parent is asked once for each row. False when there is nothing to do.
  bool Expand(HTREEITEM row, UINT code);
  /// By the user: the parent is asked every time.
  void Toggle(HTREEITEM row, bool expand);

  void SetImages(const CImageList* images);
  const CImageList* Images() const { return images_; }
  void SetRowHeight(int height);
  /// 0 while the rows have their natural height.
  int ChosenRowHeight() const { return rowHeight_; }
  int RowHeight() const;

 private:
  TreeWidget& Tree() const;
  bool AskSelection(HTREEITEM from, HTREEITEM to);
  bool AskExpansion(HTREEITEM row, UINT action);
  bool ExpandOnce(HTREEITEM row);
  bool Collapse(HTREEITEM row, bool removeChildren);
  bool IsSelectionBelow(const QTreeWidgetItem& item) const;
  void RemoveChildren(QTreeWidgetItem& item);
  void Forget(const QTreeWidgetItem& item);

  QHash<quintptr, QTreeWidgetItem*> rows_;
  quintptr lastHandle_ = 0;
  const CImageList* images_ = nullptr;
  int rowHeight_ = 0;
  bool asking_ = false;  ///< The parent is being asked; nothing else moves the selection meanwhile.
};
