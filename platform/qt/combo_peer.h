#pragma once

// Combo boxes. Private to the platform layer.

#include <QComboBox>
#include <QVariant>

#include "platform/qt/peer.h"

class ComboEditPeer;
class ComboWidget;

/// The widget is a QComboBox that keeps the height of one row whatever height it is given: the
/// height of a template is that of the dropped list.
class ComboPeer final : public Peer {
 public:
  ComboPeer(DWORD style, const std::wstring& initialText, QWidget* host);

  std::wstring Text() const override;
  /// Fills the edit part; a combo without one keeps its text.
  void SetText(const std::wstring& newText) override;
  LRESULT DefaultProcedure(UINT message, WPARAM wParam, LPARAM lParam) override;
  bool HoldsFocus() const override { return dropped_; }
  void MakeParts() override;

  /// The row it got, CB_ERR when there is no such place; a row of -1 appends.
  int Insert(int row, const QString& rowText);
  /// Inserts in the order of the combo's style.
  int Add(const QString& rowText);
  int Remove(int row);
  void Clear();

  int Selection() const;
  int Select(int row);
  /// The first row behind `after`, wrapping around, with that text, case aside.
  int FindExact(int after, const QString& rowText) const;

  /// What is kept with a row beside its text and colour: its DWORD_PTR, its indent in pixels.
  enum RowRole { DataRole = Qt::UserRole, IndentRole };
  bool SetRow(int row, int role, const QVariant& value);
  QVariant Row(int row, int role) const;

  int Count() const { return Combo().count(); }
  bool Dropped() const { return dropped_; }
  void Drop(bool drop);
  void SetDroppedWidth(int width);
  int DroppedWidth() const;

  void SetLimit(int characters);
  void SetCue(const QString& cue);
  DWORD EditSelection() const;
  bool SetEditSelection(int start, int end);

  /// Offers the notification to the attached object, then sends it to the parent.
  LRESULT Notify(UINT code);
  void ChooseRow(int row);

  /// The edit part; null when the combo has none.
  ComboEditPeer* EditPart() const;

 private:
  friend class ComboWidget;

  QComboBox& Combo() const { return static_cast<QComboBox&>(*widget); }
  ComboWidget& Widget() const;
  bool HasRow(int row) const { return row >= 0 && row < Combo().count(); }
  /// The selected row whether the list is dropped or not; none once the edit part says otherwise.
  int Settled() const;

  void OnChosen();
  void OnEdited();
  void OnAboutToDrop();
  void OnClosed();
  /// Highlights the row with the edited text in the list that has just dropped, or none.
  void HighlightText();

  int known_ = -1;     ///< The selection before whatever the user does next.
  int previous_ = -1;  ///< The selection before the user's last choice.
  HWND editPart_ = nullptr;
  bool dropped_ = false;
  int droppedWidth_ = 0;
};
