#include "host/drive/input.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeySequence>
#include <QPointer>
#include <QStringList>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace {

// Far enough apart that two clicks are never taken for a double click.
constexpr int kMillisecondsBetweenClicks = 1000;
int eventTime = 0;

struct NamedKey {
  const char* name;
  const char* portable;
};
constexpr NamedKey kOtherNames[] = {
    {"Enter", "Return"}, {"Escape", "Esc"},      {"Delete", "Del"},   {"Insert", "Ins"},
    {"PageUp", "PgUp"},  {"PageDown", "PgDown"}, {"Page Up", "PgUp"}, {"Page Down", "PgDown"}};

struct KeyText {
  int key;
  const char* text;
};
constexpr KeyText kKeyTexts[] = {{Qt::Key_Return, "\r"},   {Qt::Key_Tab, "\t"},
                                 {Qt::Key_Escape, "\x1b"}, {Qt::Key_Backspace, "\b"},
                                 {Qt::Key_Delete, "\x7f"}, {Qt::Key_Space, " "}};

struct Modifier {
  Qt::KeyboardModifier modifier;
  Qt::Key key;
};
constexpr Modifier kModifiers[] = {{Qt::ShiftModifier, Qt::Key_Shift},
                                   {Qt::ControlModifier, Qt::Key_Control},
                                   {Qt::AltModifier, Qt::Key_Alt},
                                   {Qt::MetaModifier, Qt::Key_Meta}};

void SendMouse(QWindow* window, const QPoint& place, QEvent::Type type, Qt::MouseButton button) {
  const Qt::MouseButtons held =
      type == QEvent::MouseButtonPress ? Qt::MouseButtons(button) : Qt::MouseButtons();
  qt_handleMouseEvent(window, place, window->mapToGlobal(place), held, button, type, Qt::NoModifier,
                      eventTime);
}

void SendKey(const QPointer<QWindow>& window, QEvent::Type type, int key,
             Qt::KeyboardModifiers modifiers, const QString& text) {
  if (window != nullptr) qt_handleKeyEvent(window, type, key, modifiers, text, false);
}

/// What a desktop sends behind the press of the menu key.
void AskForMenu(const QPointer<QWindow>& window) {
  QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
  if (window != nullptr) QCoreApplication::sendEvent(window, &event);
}

QString TextOf(QKeyCombination key) {
  if ((key.keyboardModifiers() & ~Qt::ShiftModifier) != 0) return {};
  for (const KeyText& row : kKeyTexts) {
    if (row.key == key.key()) return QLatin1String(row.text);
  }
  if (key.key() <= Qt::Key_Space || key.key() > Qt::Key_ydiaeresis) return {};
  const QChar character(static_cast<ushort>(key.key()));
  return key.keyboardModifiers() != 0 ? QString(character) : QString(character.toLower());
}

void Press(QWidget* widget, QKeyCombination combination, const QString& text) {
  const QPointer<QWindow> window = widget->windowHandle();
  const Qt::KeyboardModifiers all = combination.keyboardModifiers();
  Qt::KeyboardModifiers held;
  for (const Modifier& row : kModifiers) {
    if (!all.testFlag(row.modifier)) continue;
    SendKey(window, QEvent::KeyPress, row.key, held, {});
    held |= row.modifier;
  }
  SendKey(window, QEvent::KeyPress, combination.key(), all, text);
  if (combination == QKeyCombination(Qt::Key_Menu)) AskForMenu(window);
  SendKey(window, QEvent::KeyRelease, combination.key(), all, text);
  for (auto row = std::rbegin(kModifiers); row != std::rend(kModifiers); ++row) {
    if (!all.testFlag(row->modifier)) continue;
    SendKey(window, QEvent::KeyRelease, row->key, held, {});
    held &= ~Qt::KeyboardModifiers(row->modifier);
  }
}

void ClickTimes(QWidget* widget, const QPoint& place, Qt::MouseButton button, int times) {
  const QPointer<QWindow> window = widget->window()->windowHandle();
  const QPoint inWindow = widget->mapTo(widget->window(), place);
  eventTime += kMillisecondsBetweenClicks;
  SendMouse(window, inWindow, QEvent::MouseMove, Qt::NoButton);
  for (int time = 0; time < times; ++time) {
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      if (window != nullptr) SendMouse(window, inWindow, type, button);
    }
  }
}

}  // namespace

void ClickAt(QWidget* widget, const QPoint& place) { ClickTimes(widget, place, Qt::LeftButton, 1); }

void DoubleClickAt(QWidget* widget, const QPoint& place) {
  ClickTimes(widget, place, Qt::LeftButton, 2);
}

void RightClickAt(QWidget* widget, const QPoint& place) {
  ClickTimes(widget, place, Qt::RightButton, 1);
}

void PressKey(QWidget* window, QKeyCombination key) { Press(window, key, TextOf(key)); }

void PressCharacter(QWidget* window, const QString& character) {
  const QChar upper = character.front().toUpper();
  const bool known = upper.unicode() <= 0xFF && character.size() == 1;
  const Qt::Key key = known ? static_cast<Qt::Key>(upper.unicode()) : Qt::Key_unknown;
  const bool shifted = character.front().isUpper();
  Press(window, QKeyCombination(shifted ? Qt::ShiftModifier : Qt::NoModifier, key), character);
}

QKeyCombination ParseKey(const QString& name) {
  QStringList parts = name.split('+');
  for (const NamedKey& row : kOtherNames) {
    if (parts.back().compare(QLatin1String(row.name), Qt::CaseInsensitive) == 0) {
      parts.back() = QLatin1String(row.portable);
    }
  }
  const QKeySequence sequence =
      QKeySequence::fromString(parts.join('+'), QKeySequence::PortableText);
  return sequence.count() == 1 ? sequence[0] : QKeyCombination(Qt::Key_unknown);
}
