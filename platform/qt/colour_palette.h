#pragma once

// The palette that a colour button opens. Private to the platform layer.

#include <QFrame>

#include "platform/types.h"

class QGridLayout;

/// A popup with the standard colours, and an entry for any other colour where the button asks for
/// one. Choosing gives the button the colour and tells its parent.
class ColourPalette final : public QFrame {
 public:
  /// Opens the palette of a button; one that no colour button is attached to is just clicked.
  static void Open(HWND button);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  ColourPalette(HWND button, QWidget& anchor);

  void AddColours(QGridLayout& layout, COLORREF current);
  void AddOther(QGridLayout& layout, const QString& caption);
  void Place(const QWidget& anchor);
  void ChooseOther();
  static void Choose(HWND button, COLORREF colour);

  HWND button_;
};
