#pragma once

// List views. Private to the platform layer.

#include <QItemSelection>

#include "platform/qt/list_view.h"
#include "platform/qt/peer.h"

class QScrollBar;

class ListPeer final : public Peer {
 public:
  ListPeer(DWORD initialStyle, const std::wstring& initialText, QWidget* host);

  LRESULT DefaultProcedure(UINT message, WPARAM wParam, LPARAM lParam) override;
  void OnStyleChanged(DWORD changed) override;

  ListView& View() const { return static_cast<ListView&>(*widget); }
  ListModel& Rows() const { return View().Rows(); }

  DWORD ExtendedStyle() const { return extendedStyle_; }
  /// The previous one.
  DWORD SetExtendedStyle(DWORD extended);

  /// As the operations of CListCtrl.
  int InsertColumn(int column, const QString& heading, int format, int width);
  bool SetColumnWidth(int column, int width);
  int ColumnWidth(int column) const;
  bool Remove(int row);
  void Clear();
  bool SetState(int row, UINT state, UINT mask);
  UINT State(int row) const;
  /// The first selected row from `row` on; -1 when there is none.
  int NextSelected(int row) const;
  /// SB_HORZ or SB_VERT.
  QScrollBar& ScrollBar(int bar) const;
  /// Scrolls by pixels, in whole rows or columns of rows where the bar counts these.
  void Scroll(int dx, int dy);

  void NotifyClick(UINT code, int row, const QPoint& place);

 private:
  void Watch();
  QItemSelectionModel::SelectionFlags SelectionCommand(bool select) const;
  void MoveFocus(int row, bool here);
  void OnSelectionChanged(const QItemSelection& selected, const QItemSelection& deselected);
  void NotifyChanges(const QItemSelection& rows, UINT newState, UINT oldState);
  void NotifyChange(int row, UINT newState, UINT oldState);

  DWORD extendedStyle_ = 0;
  bool removing_ = false;  ///< Rows are going, which is no change of theirs.
};
