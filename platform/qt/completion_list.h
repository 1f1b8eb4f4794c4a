#pragma once

// The list of suggestions below an edit. Private to the platform layer.

#include <QListView>
#include <QStringListModel>

/// A window of its own that takes neither the focus nor the keyboard. Its property "windowKind" is
/// "completion".
class CompletionList final : public QListView {
 public:
  /// A list for the field, which must be inside a window; it belongs to that window.
  explicit CompletionList(const QWidget& field);

  /// Shows the list below the field, or above where there is more room; no row is highlighted.
  void Open(const QStringList& rows);
  int Count() const { return model_.rowCount(); }
  QString Row(int row) const { return model_.stringList().at(row); }
  /// -1 for none.
  int Highlighted() const { return currentIndex().row(); }
  void Highlight(int row);

 private:
  QSize SizeFor(const QStringList& rows, int room) const;

  const QWidget& field_;
  QStringListModel model_;
};
