#include "host/drive/control_actions.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTextBoundaryFinder>

#include "host/drive/control_finder.h"
#include "host/drive/describe.h"
#include "host/drive/input.h"
#include "host/drive/request.h"
#include "host/drive/request_error.h"
#include "host/drive/window_stack.h"

namespace {

[[noreturn]] void Refuse(const QWidget* control, const QString& why) {
  throw RequestError(QStringLiteral("A person cannot use %1: %2.").arg(NameControl(control), why));
}

// A dropped list takes the next click, wherever it goes.
void CheckNoListDropped(QWidget* control) {
  for (QComboBox* combo : control->window()->findChildren<QComboBox*>()) {
    if (combo != control && combo->view()->isVisible()) {
      Refuse(control, QStringLiteral("the list of %1 is dropped").arg(NameControl(combo)));
    }
  }
}

// Only the focus of the keyboard is set; what the keys do then is up to the control.
void Focus(QWidget* control) {
  QWidget* focus = QApplication::focusWidget();
  if (focus == control || (focus != nullptr && control->isAncestorOf(focus))) return;
  control->setFocus(Qt::TabFocusReason);
}

class Typist {
 public:
  explicit Typist(QWidget* control) : control_(control) {}

  // False when the control has gone, or has been covered, in the meantime.
  bool Press(QKeyCombination key) {
    if (!Ready()) return false;
    PressKey(control_->window(), key);
    QCoreApplication::processEvents();
    return true;
  }
  bool Type(const QString& character) {
    if (!Ready()) return false;
    PressCharacter(control_->window(), character);
    QCoreApplication::processEvents();
    return true;
  }

 private:
  bool Ready() const {
    if (control_ == nullptr || !control_->isVisible() || !control_->isEnabled()) return false;
    const QWidget* modal = QApplication::activeModalWidget();
    return modal == nullptr || modal == control_->window();
  }
  QPointer<QWidget> control_;
};

QStringList Characters(const QString& text) {
  QStringList characters;
  for (const uint code : text.toUcs4()) {
    const char32_t character = code;
    characters << QString::fromUcs4(&character, 1);
  }
  return characters;
}

QRect ArrowOf(const QComboBox& combo) {
  QStyleOptionComboBox option;
  option.initFrom(&combo);
  option.editable = combo.isEditable();
  option.subControls = QStyle::SC_All;
  return combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow,
                                       &combo);
}

struct WantedRow {
  std::optional<int> index;
  QString text;

  // -1 when there is no such row.
  int In(const QStringList& rows) const {
    if (index) return *index >= 0 && *index < rows.size() ? *index : -1;
    return static_cast<int>(rows.indexOf(text));
  }
  [[noreturn]] void Missing(const QWidget* control, const QStringList& rows) const {
    if (index) {
      throw RequestError(QStringLiteral("There is no row %1 in %2; it has %3 rows.")
                             .arg(*index)
                             .arg(NameControl(control))
                             .arg(rows.size()));
    }
    throw RequestError(QStringLiteral("There is no row \"%1\" in %2; the nearest are %3.")
                           .arg(text, NameControl(control), NearCandidates(text, rows)));
  }
};

QStringList RowsOf(const QComboBox& combo) {
  QStringList rows;
  for (int row = 0; row < combo.count(); ++row) rows << combo.itemText(row);
  return rows;
}

// Down the dropped list by the arrow keys, as its rows may be many more than are shown.
bool MoveInList(QComboBox& combo, int row) {
  QWidget* popup = combo.view()->window();
  PressKey(popup, Qt::Key_Home);
  for (int step = 0; step < combo.count(); ++step) {
    if (combo.view()->currentIndex().row() == row) return true;
    PressKey(popup, Qt::Key_Down);
  }
  return combo.view()->currentIndex().row() == row;
}

void PickInCombo(QComboBox& combo, const WantedRow& wanted) {
  const int present = combo.currentIndex();
  if (present >= 0 && wanted.In(RowsOf(combo)) == present &&
      combo.currentText() == combo.itemText(present)) {
    return;
  }
  if (!combo.view()->isVisible()) ClickAt(&combo, ArrowOf(combo).center());
  if (!combo.view()->isVisible()) Refuse(&combo, QStringLiteral("its list does not drop"));
  // The list may only be filled when it drops.
  const QStringList rows = RowsOf(combo);
  const int row = wanted.In(rows);
  if (row < 0 || !MoveInList(combo, row)) {
    PressKey(combo.view()->window(), Qt::Key_Escape);
    if (row < 0) wanted.Missing(&combo, rows);
    Refuse(&combo, QStringLiteral("row %1 of its list cannot be chosen").arg(row));
  }
  PressKey(combo.view()->window(), Qt::Key_Return);
}

void PickInList(QListWidget& list, const WantedRow& wanted) {
  QStringList rows;
  for (int row = 0; row < list.count(); ++row) rows << list.item(row)->text();
  const int row = wanted.In(rows);
  if (row < 0) wanted.Missing(&list, rows);
  if (list.currentRow() == row) return;
  list.scrollToItem(list.item(row));
  ClickAt(list.viewport(), list.visualItemRect(list.item(row)).center());
}

bool TakesText(QWidget* control) {
  const auto* combo = qobject_cast<QComboBox*>(control);
  return combo != nullptr ? combo->isEditable() : KindOf(control) == "edit";
}

}  // namespace

void CheckUsable(const WindowStack& windows, QWidget* control) {
  if (const QWidget* cover = windows.CoverOf(control->window())) {
    Refuse(control, QStringLiteral("it is covered by ") + NameWindow(cover));
  }
  if (!control->isVisible()) Refuse(control, QStringLiteral("it is hidden"));
  if (!control->isEnabled()) Refuse(control, QStringLiteral("it is disabled"));
  CheckNoListDropped(control);
}

void CheckKind(const QWidget* control, const QString& kinds, const QString& verb) {
  if (kinds.contains(' ' + KindOf(control) + ' ')) return;
  throw RequestError(
      QStringLiteral("The verb \"%1\" does not fit %2.").arg(verb, NameControl(control)));
}

void ClickControl(QWidget* control) {
  const QPoint middle = control->rect().center();
  QWidget* window = control->window();
  const QPoint place = control->mapTo(window, middle);
  if (!window->rect().contains(place)) {
    Refuse(control, QStringLiteral("its middle lies outside of the window"));
  }
  QWidget* hit = window->childAt(place);
  if (hit != nullptr && hit != control && !control->isAncestorOf(hit) && IsControl(hit)) {
    Refuse(control, QStringLiteral("its middle is covered by ") + NameControl(hit));
  }
  ClickAt(control, middle);
}

void TypeInto(QWidget* control, const QString& text) {
  if (!TakesText(control)) CheckKind(control, QStringLiteral(" edit "), QStringLiteral("type"));
  Focus(control);
  TypeKeys(control, text);
}

void TypeKeys(QWidget* field, const QString& text) {
  const bool severalLines = qobject_cast<QPlainTextEdit*>(field) != nullptr;
  Typist typist(field);
  bool going = typist.Press(Qt::CTRL | Qt::Key_A) && typist.Press(Qt::Key_Delete);
  for (const QString& character : Characters(text)) {
    if (!going) break;
    if (character == "\n") {
      going = !severalLines || typist.Press(Qt::Key_Return);
    } else if (character.front() >= ' ') {
      going = typist.Type(character);
    }
  }
  if (!going) {
    throw RequestError(QStringLiteral("The control could not be typed into any longer."));
  }
}

void PickRow(QWidget* control, std::optional<int> index, const QString& text) {
  const WantedRow wanted{index, text};
  if (auto* combo = qobject_cast<QComboBox*>(control)) return PickInCombo(*combo, wanted);
  if (auto* list = qobject_cast<QListWidget*>(control)) return PickInList(*list, wanted);
  CheckKind(control, QString(), QStringLiteral("pick"));
}

void SlideTo(QWidget* control, int value) {
  CheckKind(control, QStringLiteral(" slider "), QStringLiteral("slide"));
  const QPointer<QSlider> slider = qobject_cast<QSlider*>(control);
  if (value < slider->minimum() || value > slider->maximum()) {
    throw RequestError(QStringLiteral("%1 goes from %2 to %3, not to %4.")
                           .arg(NameControl(control))
                           .arg(slider->minimum())
                           .arg(slider->maximum())
                           .arg(value));
  }
  Focus(control);
  Typist typist(control);
  while (slider != nullptr && slider->value() != value) {
    const int before = slider->value();
    const bool up = value > before;
    const bool far = qAbs(value - before) >= slider->pageStep();
    const Qt::Key key =
        far ? (up ? Qt::Key_PageUp : Qt::Key_PageDown) : (up ? Qt::Key_Right : Qt::Key_Left);
    const bool pressed = typist.Press(key);
    if (pressed && slider != nullptr && qAbs(value - slider->value()) < qAbs(value - before))
      continue;
    throw RequestError(QStringLiteral("The keys do not move the slider beyond %1.").arg(before));
  }
}
