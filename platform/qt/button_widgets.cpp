#include "platform/qt/button_widgets.h"

#include <QButtonGroup>
#include <QStyleOption>
#include <QStylePainter>

#include "platform/controls.h"
#include "platform/qt/button_painter.h"

namespace {

struct Elements {
  QStyle::SubElement indicator;
  QStyle::PrimitiveElement indicatorShape;
  QStyle::PixelMetric spacing;
};

constexpr Elements kCheckElements = {QStyle::SE_CheckBoxIndicator, QStyle::PE_IndicatorCheckBox,
                                     QStyle::PM_CheckBoxLabelSpacing};
constexpr Elements kRadioElements = {QStyle::SE_RadioButtonIndicator,
                                     QStyle::PE_IndicatorRadioButton,
                                     QStyle::PM_RadioButtonLabelSpacing};

/// Beside the indicator, mirrored where the writing runs from right to left.
QRect LabelRect(const QStyleOptionButton& option, const QRect& indicator, int spacing) {
  QRect label = option.rect;
  if (option.direction == Qt::RightToLeft) {
    label.setRight(indicator.left() - spacing - 1);
  } else {
    label.setLeft(indicator.right() + spacing + 1);
  }
  return label;
}

/// Draws what the style would draw, with the label wrapped at words.
void PaintWrapped(QStylePainter& painter, const QStyleOptionButton& option,
                  const Elements& elements, const QWidget& widget) {
  const QStyle& style = *widget.style();
  QStyleOptionButton part = option;
  part.rect = style.subElementRect(elements.indicator, &option, &widget);
  painter.drawPrimitive(elements.indicatorShape, part);

  const int spacing = style.pixelMetric(elements.spacing, &option, &widget);
  const QRect label = LabelRect(option, part.rect, spacing);
  constexpr int kFlags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap;
  const int flags = int(QStyle::visualAlignment(option.direction, Qt::Alignment(kFlags))) |
                    Qt::TextWordWrap | Qt::TextShowMnemonic;
  painter.drawItemText(label, flags, option.palette, (option.state & QStyle::State_Enabled) != 0,
                       option.text, QPalette::WindowText);
  if ((option.state & QStyle::State_HasFocus) == 0) return;
  QStyleOptionFocusRect focus;
  focus.QStyleOption::operator=(option);
  focus.rect = style.itemTextRect(option.fontMetrics, label, flags, true, option.text)
                   .adjusted(-1, 0, 1, 0)
                   .intersected(label);
  painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

bool IsAutomatic(DWORD style) {
  const DWORD type = style & BS_TYPEMASK;
  return type == BS_AUTOCHECKBOX || type == BS_AUTO3STATE || type == BS_AUTORADIOBUTTON;
}

}  // namespace

int CheckOf(Qt::CheckState state) {
  if (state == Qt::PartiallyChecked) return BST_INDETERMINATE;
  return state == Qt::Checked ? BST_CHECKED : BST_UNCHECKED;
}

Qt::CheckState CheckState(int check, bool threeStates) {
  if (check == BST_INDETERMINATE && threeStates) return Qt::PartiallyChecked;
  return check == BST_UNCHECKED ? Qt::Unchecked : Qt::Checked;
}

void PushButtonWidget::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  ButtonPainter(*this).Paint(painter, option);
}

CheckBoxWidget::CheckBoxWidget(DWORD style, QWidget* parent) : QCheckBox(parent), style_(style) {
  const DWORD type = style & BS_TYPEMASK;
  setTristate(type == BS_3STATE || type == BS_AUTO3STATE);
}

void CheckBoxWidget::paintEvent(QPaintEvent* event) {
  if ((style_ & BS_MULTILINE) == 0) return QCheckBox::paintEvent(event);
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  PaintWrapped(painter, option, kCheckElements, *this);
}

void CheckBoxWidget::nextCheckState() {
  if (!IsAutomatic(style_)) return;  // The program sets the state.
  const int states = isTristate() ? 3 : 2;
  setCheckState(CheckState((CheckOf(checkState()) + 1) % states, isTristate()));
}

RadioButtonWidget::RadioButtonWidget(DWORD style, QWidget* parent)
    : QRadioButton(parent), style_(style) {}

void RadioButtonWidget::paintEvent(QPaintEvent* event) {
  if ((style_ & BS_MULTILINE) == 0) return QRadioButton::paintEvent(event);
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  PaintWrapped(painter, option, kRadioElements, *this);
}

void RadioButtonWidget::nextCheckState() {
  // The group calls it as well, to clear the button that was checked before.
  if (IsAutomatic(style_)) setChecked(group() == nullptr || !isChecked());
}
