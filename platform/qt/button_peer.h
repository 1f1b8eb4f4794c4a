#pragma once

// Push buttons, check boxes, radio buttons and group boxes. Private to the platform layer.

#include <QAbstractButton>
#include <QPixmap>

#include "platform/qt/peer.h"

/// The widget is a QPushButton, QCheckBox, QRadioButton or QGroupBox, as the style says.
class ButtonPeer final : public Peer {
 public:
  ButtonPeer(DWORD style, const std::wstring& initialText, QWidget* host);

  void SetText(const std::wstring& newText) override;

  /// BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE. A push button keeps the state as a mark that
  /// it is drawn with.
  int GetCheck() const;
  /// Sets the state without telling the parent; a radio button that is checked clears the others
  /// of its group. BST_INDETERMINATE counts as checked where there are two states only.
  void SetCheck(int check);

  /// Makes a push button show the picture instead of its text.
  void SetImage(const QPixmap& picture, int index);
  const QPixmap& Image() const { return image_; }
  /// -1 for none.
  int ImageIndex() const { return imageIndex_; }

  /// Makes a click open something instead of telling the parent.
  void OpenOnClick(void (*opener)(HWND button)) { opener_ = opener; }

 private:
  QAbstractButton* Button() const { return qobject_cast<QAbstractButton*>(widget.data()); }
  void SetRadio(bool checked);
  void OnClicked();

  int pushCheck_ = 0;
  QPixmap image_;
  int imageIndex_ = -1;
  void (*opener_)(HWND button) = nullptr;
};
