#pragma once

// List boxes. Private to the platform layer.

#include <QListWidget>

#include "platform/qt/peer.h"

class ListBoxPeer final : public Peer {
 public:
  ListBoxPeer(DWORD style, const std::wstring& initialText, QWidget* host);

  /// What is kept with a row beside its text: its DWORD_PTR, and whether it is a separator.
  enum RowRole { DataRole = Qt::UserRole, SeparatorRole };

  /// Appends a row; its number.
  int Add(const QString& rowText);
  /// Inserts a row before that one, or at the end with -1; its number, or -1.
  int Insert(int row, const QString& rowText);
  /// The number of rows left; -1 when there is no such row.
  int Remove(int row);
  int Count() const { return List().count(); }
  int Selection() const { return List().currentRow(); }
  /// Selects a row without telling the parent; the row selected then.
  int Select(int row);
  bool SetRow(int row, int role, const QVariant& value);
  /// Invalid when there is no such row.
  QVariant Row(int row, int role) const;

 private:
  QListWidget& List() const { return static_cast<QListWidget&>(*widget); }
  void OnSelected();

  bool selecting_ = false;  ///< The program selects, not the user.
};
