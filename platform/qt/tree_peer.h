#pragma once

// Tree views. Private to the platform layer.

#include <QHash>
#include <QTreeWidget>

#include "platform/qt/peer.h"

class CImageList;

/// What a tree keeps with each row, beside its text.
enum TreeRole {
  TreeHandleRole = Qt::UserRole,  ///< The row's HTREEITEM as an integer.
  TreeDataRole,                   ///< The row's DWORD_PTR as an integer.
  TreeImageRole,                  ///< Index of the image in the tree's list; -1 for none.
  TreeSelectedImageRole,
  TreeExpandedOnceRole,  ///< The parent has been asked for leave to expand the row.
};

/// The widget is a QTreeWidget of one column. Handles of rows are never used twice.
class TreePeer final : public Peer {
 public:
  TreePeer(DWORD style, const std::wstring& text, QWidget* parent);

  LRESULT DefaultProcedure(UINT message, WPARAM wParam, LPARAM lParam) override;

  /// `after` is a sibling; any other value appends.
  HTREEITEM Insert(const QString& text, int image, int selectedImage, HTREEITEM parent,
                   HTREEITEM after);
  /// Sends no notification.
  void Clear();
  /// Null for a stale handle.
  QTreeWidgetItem* Find(HTREEITEM handle) const;
  static HTREEITEM HandleOf(const QTreeWidgetItem* item);

  HTREEITEM Selected() const;
  /// Asks the parent; false when it refuses or the handle is stale. Null selects nothing.
  bool Select(HTREEITEM handle);
  bool Expand(HTREEITEM handle, UINT code);

  void SetImages(const CImageList* images);
  const CImageList* Images() const { return images_; }
  void SetRowHeight(int height);
  int RowHeight() const;

 private:
  friend class TreeSelectionModel;
  friend class TreeWidget;

  QTreeWidget& Tree() const { return static_cast<QTreeWidget&>(*widget); }
  bool AskSelection(QTreeWidgetItem* from, QTreeWidgetItem* to);
  bool AskExpansion(QTreeWidgetItem* item, UINT action);
  /// By the user: every expansion is asked for.
  void Toggle(QTreeWidgetItem* item, bool expand);
  bool LeaveChildren(QTreeWidgetItem* item, bool ask);
  void RemoveChildren(QTreeWidgetItem* item);
  void Forget(QTreeWidgetItem* item);

  QHash<quintptr, QTreeWidgetItem*> rows_;
  quintptr lastHandle_ = 0;
  const CImageList* images_ = nullptr;
  int rowHeight_ = 0;
};
