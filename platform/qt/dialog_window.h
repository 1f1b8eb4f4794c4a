#pragma once

// The widgets of dialogs. Private to the platform layer.

#include <QDialog>

#include "platform/qt/peer.h"

struct DialogPeer final : Peer {
  int defaultId = IDOK;  ///< The control that Enter presses.
  int baseX = 1;         ///< Pixels of four horizontal dialog units.
  int baseY = 1;         ///< Pixels of eight vertical dialog units.

  void SetText(const std::wstring& newText) override;
};

/// A rectangle in dialog units in pixels.
QRect DialogPixels(const DialogPeer& dialog, int x, int y, int cx, int cy);

/// Makes the control the one that Enter presses, and shows it.
void SetDefaultControl(DialogPeer& dialog, int id);

/// A dialog of its own. It never closes by itself: all ways out are commands to its window.
class DialogWindow final : public QDialog {
 public:
  using QDialog::QDialog;
  void reject() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void PressDefault();
};
