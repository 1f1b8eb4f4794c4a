#pragma once

// The widgets behind the button control. Private to the platform layer.

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

#include "platform/types.h"

/// The state of a check box as BST_... and back.
int CheckOf(Qt::CheckState state);
Qt::CheckState CheckState(int check, bool threeStates);

/// A push button that its attached class may draw otherwise, flat, with an image or a colour.
class PushButtonWidget final : public QPushButton {
 public:
  using QPushButton::QPushButton;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// A check box that can be clicked all over and whose label may take several lines.
class CheckBoxWidget final : public QCheckBox {
 public:
  CheckBoxWidget(DWORD style, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool hitButton(const QPoint& place) const override { return rect().contains(place); }
  void nextCheckState() override;

 private:
  DWORD style_;
};

/// A radio button with the same liberties.
class RadioButtonWidget final : public QRadioButton {
 public:
  RadioButtonWidget(DWORD style, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool hitButton(const QPoint& place) const override { return rect().contains(place); }
  void nextCheckState() override;

 private:
  DWORD style_;
};
