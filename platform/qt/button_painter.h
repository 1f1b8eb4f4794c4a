#pragma once

// Draws push buttons as their attached class wants them. Private to the platform layer.

#include <QPushButton>
#include <QStyleOption>
#include <QStylePainter>

#include "platform/types.h"

class ButtonPeer;
class CBCGPButton;

class ButtonPainter {
 public:
  explicit ButtonPainter(const QPushButton& widget);

  /// `option` is the button as it is; the attached class may change its state and border.
  void Paint(QStylePainter& painter, QStyleOptionButton option) const;

 private:
  UINT AdjustState(QStyleOptionButton& option) const;
  void ApplyFlatStyle(QStylePainter& painter, QStyleOptionButton& option) const;
  void PaintFace(QStylePainter& painter, const QStyleOptionButton& option, UINT state) const;

  const ButtonPeer* peer_;
  CBCGPButton* attached_;  ///< Null for a button of the plain class.
};
