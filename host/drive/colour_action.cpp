// Choosing a colour as a person does.

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>

#include "host/drive/control_actions.h"
#include "host/drive/input.h"
#include "host/drive/request_error.h"
#include "platform/types.h"

namespace {

constexpr int kGreatestColour = 0xFFFFFF;

int ColourOf(const QWidget* widget) { return widget->property("colour").toInt(); }

QAbstractButton* FindSwatch(const QWidget& palette, int value) {
  for (auto* swatch : palette.findChildren<QAbstractButton*>()) {
    if (swatch->property("colour").isValid() && ColourOf(swatch) == value) return swatch;
  }
  return nullptr;
}

void ClickMiddle(QWidget* widget) { ClickAt(widget, widget->rect().center()); }

/// The one field that is a line edit by itself and no part of another.
QLineEdit* FindNameField(const QColorDialog& dialog) {
  for (const auto* label : dialog.findChildren<QLabel*>()) {
    if (auto* field = qobject_cast<QLineEdit*>(label->buddy())) return field;
  }
  return nullptr;
}

/// Types the colour into the field for its name and confirms. Runs in one go, so that nothing else
/// happens between two keys.
void TypeColour(QColorDialog& dialog, int value) {
  QLineEdit* field = FindNameField(dialog);
  if (field == nullptr) return dialog.reject();
  const auto colour = static_cast<COLORREF>(value);
  const QString name = QColor(GetRValue(colour), GetGValue(colour), GetBValue(colour)).name();
  ClickMiddle(field);
  PressKey(&dialog, Qt::CTRL | Qt::Key_A);
  for (const QChar character : name) PressCharacter(&dialog, character);
  PressKey(&dialog, Qt::Key_Return);
}

void ChooseOther(QWidget& palette, int value) {
  auto* other = palette.findChild<QAbstractButton*>(QStringLiteral("otherColour"));
  if (other == nullptr) {
    PressKey(&palette, Qt::Key_Escape);
    return;
  }
  // The click returns when the dialog is closed again.
  QTimer::singleShot(0, palette.parentWidget(), [value] {
    auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
    if (dialog != nullptr) TypeColour(*dialog, value);
  });
  ClickMiddle(other);
}

}  // namespace

void ChooseColour(QWidget* control, int value) {
  CheckKind(control, QStringLiteral(" colour "), QStringLiteral("colour"));
  if (value < 0 || value > kGreatestColour) {
    throw RequestError(
        QStringLiteral("Colours go from 0 to %1, not to %2.").arg(kGreatestColour).arg(value));
  }
  const QPointer<QWidget> button = control;
  ClickControl(control);
  QWidget* palette = QApplication::activePopupWidget();
  if (palette == nullptr || palette->objectName() != "colourPalette") {
    throw RequestError(QStringLiteral("The button does not open its palette."));
  }
  if (QAbstractButton* swatch = FindSwatch(*palette, value)) {
    ClickMiddle(swatch);
  } else {
    ChooseOther(*palette, value);
  }
  if (button == nullptr || ColourOf(button) != value) {
    throw RequestError(QStringLiteral("The button did not take the colour %1.").arg(value));
  }
}
