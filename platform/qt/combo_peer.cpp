#include "platform/qt/combo_peer.h"

#include <QAbstractItemView>
#include <QCollator>
#include <QLineEdit>
#include <algorithm>
#include <climits>

#include "platform/controls.h"
#include "platform/qt/combo_edit_peer.h"
#include "platform/qt/combo_widget.h"
#include "platform/qt/control_parts.h"

namespace {

constexpr int kNoLimit = INT_MAX - 1;

/// In the order of the user's language, case aside; equal texts in the order of their characters.
bool ComesBefore(const QString& a, const QString& b) {
  static const QCollator order = [] {
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
  }();
  const int difference = order.compare(a, b);
  return difference != 0 ? difference < 0 : a < b;
}

/// The place of the first row that comes behind the text.
int SortedPlace(const QComboBox& combo, const QString& text) {
  int first = 0;
  int last = combo.count();
  while (first < last) {
    const int middle = first + (last - first) / 2;
    if (ComesBefore(text, combo.itemText(middle))) {
      last = middle;
    } else {
      first = middle + 1;
    }
  }
  return first;
}

/// Changes rows and afterwards puts back the selection and the edited text, which the toolkit
/// changes with them.
template <class Change>
void ChangeRows(QComboBox& combo, int selectionAfter, Change&& change) {
  QLineEdit* edit = combo.lineEdit();
  const QString text = edit != nullptr ? edit->text() : QString();
  const int caret = edit != nullptr ? edit->cursorPosition() : 0;
  change();
  if (combo.currentIndex() != selectionAfter) combo.setCurrentIndex(selectionAfter);
  if (edit == nullptr || edit->text() == text) return;
  edit->setText(text);
  edit->setCursorPosition(caret);
}

}  // namespace

ComboPeer::ComboPeer(DWORD controlStyle, const std::wstring&, QWidget* host) {
  kind = ControlKind::Combo;
  const bool editable = (controlStyle & CBS_DROPDOWNLIST) == CBS_DROPDOWN;
  auto* combo = new ComboWidget(editable, host);
  widget = combo;
  QObject::connect(combo, &QComboBox::activated, combo, [combo] {
    if (auto* peer = PeerOf<ComboPeer>(combo)) peer->OnChosen();
  });
  if (!editable) return;
  SetLimit(0);
  QObject::connect(combo->lineEdit(), &QLineEdit::textEdited, combo, [combo] {
    if (auto* peer = PeerOf<ComboPeer>(combo)) peer->OnEdited();
  });
}

void ComboPeer::MakeParts() {
  QLineEdit* edit = Combo().lineEdit();
  if (edit == nullptr) return;
  auto part = std::make_unique<ComboEditPeer>(*edit);
  part->parent = handle;
  part->id = static_cast<int>(kComboEditId);
  part->templateId = templateId;
  editPart_ = RegisterPeer(std::move(part));
}

ComboEditPeer* ComboPeer::EditPart() const { return FindPeerAs<ComboEditPeer>(editPart_); }

std::wstring ComboPeer::Text() const {
  if (const QLineEdit* edit = Combo().lineEdit()) return FromQt(edit->text());
  return FromQt(Combo().currentText());
}

void ComboPeer::SetText(const std::wstring& newText) {
  if (QLineEdit* edit = Combo().lineEdit()) edit->setText(ToQt(newText));
  known_ = Settled();
}

LRESULT ComboPeer::DefaultProcedure(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case CB_GETEDITSEL: {
      const DWORD selection = EditSelection();
      if (auto* start = reinterpret_cast<DWORD*>(wParam)) *start = LOWORD(selection);
      if (auto* end = reinterpret_cast<DWORD*>(lParam)) *end = HIWORD(selection);
      return static_cast<std::int32_t>(selection);
    }
    case CB_SETEDITSEL: {
      const auto start = static_cast<std::int16_t>(LOWORD(lParam));
      const auto end = static_cast<std::int16_t>(HIWORD(lParam));
      return SetEditSelection(start, end) ? TRUE : CB_ERR;
    }
    case CB_FINDSTRINGEXACT:
      return FindExact(static_cast<int>(wParam), ToQt(reinterpret_cast<const wchar_t*>(lParam)));
    default:
      return Peer::DefaultProcedure(message, wParam, lParam);
  }
}

int ComboPeer::Insert(int row, const QString& rowText) {
  const int count = Combo().count();
  if (row > count) return CB_ERR;
  const int place = row < 0 ? count : row;
  const int current = Combo().currentIndex();
  ChangeRows(Combo(), current >= place ? current + 1 : current,
             [&] { Combo().insertItem(place, rowText); });
  known_ = Settled();
  return place;
}

int ComboPeer::Add(const QString& rowText) {
  return Insert((style & CBS_SORT) != 0 ? SortedPlace(Combo(), rowText) : -1, rowText);
}

int ComboPeer::Remove(int row) {
  if (!HasRow(row)) return CB_ERR;
  const int current = Combo().currentIndex();
  const int after = current == row ? -1 : current > row ? current - 1 : current;
  ChangeRows(Combo(), after, [&] { Combo().removeItem(row); });
  known_ = Settled();
  return Combo().count();
}

void ComboPeer::Clear() {
  Combo().clear();
  if (QLineEdit* edit = Combo().lineEdit()) edit->clear();
  known_ = -1;
}

int ComboPeer::Selection() const {
  return dropped_ ? Combo().view()->currentIndex().row() : Settled();
}

int ComboPeer::Settled() const {
  const int row = Combo().currentIndex();
  const QLineEdit* edit = Combo().lineEdit();
  return edit != nullptr && row >= 0 && Combo().itemText(row) != edit->text() ? -1 : row;
}

int ComboPeer::Select(int row) {
  const int place = HasRow(row) ? row : -1;
  Combo().setCurrentIndex(place);
  if (QLineEdit* edit = Combo().lineEdit()) edit->setText(Combo().itemText(place));
  if (dropped_) Widget().Highlight(place);
  known_ = Settled();
  return place;
}

int ComboPeer::FindExact(int after, const QString& rowText) const {
  const int count = Combo().count();
  const int start = after < 0 || after >= count ? 0 : after + 1;
  for (int step = 0; step < count; ++step) {
    const int row = (start + step) % count;
    if (Combo().itemText(row).compare(rowText, Qt::CaseInsensitive) == 0) return row;
  }
  return CB_ERR;
}

bool ComboPeer::SetRow(int row, int role, const QVariant& value) {
  if (!HasRow(row)) return false;
  Combo().setItemData(row, value, role);
  return true;
}

QVariant ComboPeer::Row(int row, int role) const { return Combo().itemData(row, role); }

void ComboPeer::Drop(bool drop) {
  if (drop) {
    Combo().showPopup();
  } else {
    Combo().hidePopup();
  }
}

void ComboPeer::SetDroppedWidth(int width) {
  droppedWidth_ = width;
  Widget().SetListWidth(width);
}

int ComboPeer::DroppedWidth() const { return std::max(droppedWidth_, Combo().width()); }

void ComboPeer::SetLimit(int characters) {
  if (QLineEdit* edit = Combo().lineEdit()) {
    edit->setMaxLength(characters > 0 ? characters : kNoLimit);
  }
}

void ComboPeer::SetCue(const QString& cue) {
  if (QLineEdit* edit = Combo().lineEdit()) {
    edit->setPlaceholderText(cue);
  } else {
    Combo().setPlaceholderText(cue);
  }
}

DWORD ComboPeer::EditSelection() const {
  const QLineEdit* edit = Combo().lineEdit();
  if (edit == nullptr) return static_cast<DWORD>(CB_ERR);
  const bool selected = edit->hasSelectedText();
  const int start = selected ? edit->selectionStart() : edit->cursorPosition();
  const int end = selected ? edit->selectionEnd() : start;
  return static_cast<DWORD>(MAKELPARAM(start, end));
}

bool ComboPeer::SetEditSelection(int start, int end) {
  QLineEdit* edit = Combo().lineEdit();
  if (edit == nullptr) return false;
  const int length = static_cast<int>(edit->text().size());
  const int first = std::min(start, length);
  const int last = end < 0 ? length : std::min(end, length);
  if (start < 0) {
    edit->deselect();
  } else if (first == last) {
    edit->deselect();
    edit->setCursorPosition(first);
  } else {
    edit->setSelection(first, last - first);
  }
  return true;
}

LRESULT ComboPeer::Notify(UINT code) {
  const HWND self = handle;
  auto* combo = dynamic_cast<CComboBox*>(attached);
  if (combo != nullptr) {
    bool kept = false;
    GuardToolkitCall([&] { kept = combo->OnReflectedNotification(code, previous_) != FALSE; });
    if (kept) return 0;
  }
  const auto* peer = FindPeerAs<ComboPeer>(self);  // The object may have ended the window.
  return peer != nullptr ? NotifyCommand(*peer, code) : 0;
}

void ComboPeer::ChooseRow(int row) {
  const int before = known_;
  Select(row);
  known_ = before;
  OnChosen();
}

void ComboPeer::OnChosen() {
  const int now = Settled();
  if (now == known_) return;
  previous_ = known_;
  known_ = now;
  Notify(CBN_SELCHANGE);
}

void ComboPeer::OnEdited() {
  known_ = Settled();
  Notify(CBN_EDITCHANGE);
}

void ComboPeer::OnAboutToDrop() {
  const HWND self = handle;
  Notify(CBN_DROPDOWN);
  if (auto* peer = FindPeerAs<ComboPeer>(self)) peer->dropped_ = true;
}

void ComboPeer::OnClosed() {
  if (!dropped_) return;
  dropped_ = false;
  Notify(CBN_CLOSEUP);
}

void ComboPeer::HighlightText() {
  const QLineEdit* edit = Combo().lineEdit();
  if (edit != nullptr && Settled() < 0) Widget().Highlight(FindExact(-1, edit->text()));
}

ComboWidget& ComboPeer::Widget() const { return static_cast<ComboWidget&>(*widget); }
