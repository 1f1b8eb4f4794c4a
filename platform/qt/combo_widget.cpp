#include "platform/qt/combo_widget.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyledItemDelegate>

#include "platform/qt/combo_edit_peer.h"
#include "platform/qt/combo_peer.h"
#include "platform/qt/control_parts.h"

namespace {

/// Draws the rows of the dropped list with their indents.
class RowDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const int indent = index.data(ComboPeer::IndentRole).toInt();
    if (indent <= 0) return;
    // An empty picture of that width stands before the text.
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->decorationSize = QSize(indent, 1);
  }
};

}  // namespace

ComboWidget::ComboWidget(bool editable, QWidget* parent) : QComboBox(parent) {
  setEditable(editable);
  setInsertPolicy(QComboBox::NoInsert);
  setFocusPolicy(Qt::StrongFocus);
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setItemDelegate(new RowDelegate(this));
  setFixedHeight(sizeHint().height());
  if (!editable) return;
  setCompleter(nullptr);
  // A text that happens to equal a row is no choice of that row.
  disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
  disconnect(lineEdit(), &QLineEdit::returnPressed, this, nullptr);
}

void ComboWidget::showPopup() {
  auto* peer = PeerOf<ComboPeer>(this);
  if (peer == nullptr || peer->Dropped()) return;
  peer->OnAboutToDrop();
  peer = PeerOf<ComboPeer>(this);
  if (peer == nullptr) return;
  if (const ComboEditPeer* edit = peer->EditPart()) edit->CloseCompletion();
  WatchList();
  view()->window()->setMinimumWidth(listWidth_);
  opening_ = true;
  QComboBox::showPopup();
  opening_ = false;
  if (view()->isVisible()) {
    peer->HighlightText();
  } else {
    peer->OnClosed();  // There is no row to show.
  }
}

void ComboWidget::Highlight(int row) {
  const QModelIndex index = model()->index(row, modelColumn(), rootModelIndex());
  view()->setCurrentIndex(index);
  if (!index.isValid()) view()->clearSelection();
}

bool ComboWidget::eventFilter(QObject* object, QEvent* event) {
  if (object == view()) {
    switch (event->type()) {
      case QEvent::ShortcutOverride:
        // The toolkit would close the list now, before anybody was offered the key.
        event->accept();
        return true;
      case QEvent::KeyPress:
        if (OnListKey(static_cast<QKeyEvent&>(*event))) return true;
        break;
      case QEvent::FocusOut:
        OnListFocusOut();
        break;
      default:
        break;
    }
  } else if (object == view()->window() && event->type() == QEvent::Hide) {
    if (auto* peer = PeerOf<ComboPeer>(this)) peer->OnClosed();
  }
  return QComboBox::eventFilter(object, event);
}

void ComboWidget::focusOutEvent(QFocusEvent* event) {
  const auto* peer = PeerOf<ComboPeer>(this);
  if (peer == nullptr || !peer->Dropped()) return QComboBox::focusOutEvent(event);
  // The list only borrows the focus; the selection in the edit part stays.
  QFocusEvent borrowed(QEvent::FocusOut, Qt::PopupFocusReason);
  QComboBox::focusOutEvent(&borrowed);
}

void ComboWidget::keyPressEvent(QKeyEvent* event) {
  auto* peer = PeerOf<ComboPeer>(this);
  ComboEditPeer* edit = peer != nullptr ? peer->EditPart() : nullptr;
  const auto act = [this, event] { QComboBox::keyPressEvent(event); };
  if (edit == nullptr) return act();
  edit->OnKey(*event, act);
}

void ComboWidget::changeEvent(QEvent* event) {
  QComboBox::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
    setFixedHeight(sizeHint().height());
  }
}

void ComboWidget::initStyleOption(QStyleOptionComboBox* option) const {
  QComboBox::initStyleOption(option);
  // Styles drop the list of a combo with an edit part below it, and any other over it as a menu,
  // which cannot be scrolled with a bar; here every list drops below.
  if (opening_) option->editable = true;
}

void ComboWidget::WatchList() {
  if (listWatched_) return;
  listWatched_ = true;
  view()->installEventFilter(this);
  view()->window()->installEventFilter(this);
}

bool ComboWidget::OnListKey(const QKeyEvent& event) {
  auto* peer = PeerOf<ComboPeer>(this);
  if (peer == nullptr) return true;
  const HWND window = peer->handle;
  const UINT key = VirtualKey(event.key());
  if (key != 0 && PreTranslateKey(window, key)) return true;
  const bool alternate = (event.modifiers() & Qt::AltModifier) != 0;
  const bool accepts =
      key == VK_RETURN || key == VK_F4 || (alternate && (key == VK_UP || key == VK_DOWN));
  if (!accepts && key != VK_ESCAPE) return false;
  const int row = view()->currentIndex().row();
  hidePopup();
  peer = FindPeerAs<ComboPeer>(window);
  if (accepts && row >= 0 && peer != nullptr) peer->ChooseRow(row);
  return true;
}

void ComboWidget::OnListFocusOut() {
  auto* peer = PeerOf<ComboPeer>(this);
  const QWidget* receiver = QApplication::focusWidget();
  if (peer == nullptr || !peer->Dropped() || receiver == nullptr) return;
  const bool stays =
      receiver == this || isAncestorOf(receiver) || receiver->window() == view()->window();
  if (stays) return;
  SendFromToolkit(peer->handle, WM_KILLFOCUS, 0, 0);
  hidePopup();
}
