#pragma once

// The widget of a list view. Private to the platform layer.

#include <QHeaderView>
#include <QListView>

#include "platform/qt/list_model.h"

class ListDelegate;

/// Shows the rows one below the other with their headings, or in columns as wide as needed. All
/// rows are of one size, so that ten thousand of them are laid out at once.
class ListView final : public QListView {
 public:
  explicit ListView(QWidget* parent);

  ListModel& Rows() const { return *rows_; }
  QHeaderView& Headings() const { return *header_; }

  /// Takes over the LVS_ bits of a style.
  void ShowStyle(unsigned style);
  void SetFullRowSelect(bool full);
  bool FullRowSelect() const { return fullRow_; }
  bool InReport() const { return report_; }
  /// Whether the selection can be seen now.
  bool ShowsSelection() const { return showsAlways_ || hasFocus(); }

  // Rectangles and points are those of the part below the headings.
  QRect RowRect(int row) const { return visualRect(rows_->index(row, 0)); }
  /// The row's part below one heading.
  QRect CellRect(const QRect& row, int column) const;
  /// Empty without check boxes.
  QRect CheckBoxRect(int row) const;
  /// -1 where there is none.
  int RowAt(const QPoint& place) const { return indexAt(place).row(); }

  /// The row with the longest label; -1 without rows.
  int WidestRow() const;

  QRect visualRect(const QModelIndex& index) const override;
  void reset() override;
  void dataChanged(const QModelIndex& from, const QModelIndex& to,
                   const QList<int>& roles) override;

 protected:
  void rowsInserted(const QModelIndex& parent, int first, int last) override;
  void rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) override;
  void updateGeometries() override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  void ForgetWidths();
  void PlaceHeadings();
  void ToggleAtFocus();
  void NotifyClick(unsigned code, const QPoint& place);

  ListModel* rows_;
  QHeaderView* header_;
  ListDelegate* delegate_;
  bool report_ = false;
  bool headingsShown_ = true;
  bool fullRow_ = false;
  bool showsAlways_ = false;
  bool placing_ = false;      ///< The headings are being placed, which sends size events.
  bool doubleClick_ = false;  ///< The button that is held began the second click of two.
  // What has been measured so far.
  mutable int measured_ = 0;
  mutable int widest_ = -1;
  mutable int widestPixels_ = -1;
};
