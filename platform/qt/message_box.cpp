#include "platform/message_box.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "platform/qt/peer.h"

namespace {

/// The smallest screen that has to show a whole box.
constexpr QSize kSmallestScreen(1280, 720);

struct ButtonRow {
  QMessageBox::StandardButton button;
  int result;
};
constexpr ButtonRow kButtons[] = {
    {QMessageBox::Ok, IDOK},       {QMessageBox::Cancel, IDCANCEL}, {QMessageBox::Abort, IDABORT},
    {QMessageBox::Retry, IDRETRY}, {QMessageBox::Ignore, IDIGNORE}, {QMessageBox::Yes, IDYES},
    {QMessageBox::No, IDNO},
};

/// One kind of box: the button that Enter presses at first, the one that closing stands for, and
/// all of them.
struct KindRow {
  UINT kind;
  QMessageBox::StandardButton first, escape;
  int buttons;
};
constexpr KindRow kKinds[] = {
    {MB_OK, QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok},
    {MB_OKCANCEL, QMessageBox::Ok, QMessageBox::Cancel, QMessageBox::Ok | QMessageBox::Cancel},
    {MB_ABORTRETRYIGNORE, QMessageBox::Abort, QMessageBox::Abort,
     QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore},
    {MB_YESNOCANCEL, QMessageBox::Yes, QMessageBox::Cancel,
     QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel},
    {MB_YESNO, QMessageBox::Yes, QMessageBox::No, QMessageBox::Yes | QMessageBox::No},
    {MB_RETRYCANCEL, QMessageBox::Retry, QMessageBox::Cancel,
     QMessageBox::Retry | QMessageBox::Cancel},
};

struct IconRow {
  UINT icon;
  QMessageBox::Icon shown;
};
constexpr IconRow kIcons[] = {
    {MB_ICONERROR, QMessageBox::Critical},
    {MB_ICONQUESTION, QMessageBox::Question},
    {MB_ICONEXCLAMATION, QMessageBox::Warning},
    {MB_ICONINFORMATION, QMessageBox::Information},
};

/// A message of an unknown kind is still told, with OK alone.
const KindRow& KindOf(UINT style) {
  for (const KindRow& row : kKinds) {
    if (row.kind == (style & MB_TYPEMASK)) return row;
  }
  return kKinds[0];
}

QMessageBox::Icon IconOf(UINT style) {
  for (const IconRow& row : kIcons) {
    if (row.icon == (style & MB_ICONMASK)) return row.shown;
  }
  return QMessageBox::NoIcon;
}

int ResultOf(int button) {
  for (const ButtonRow& row : kButtons) {
    if (row.button == button) return row.result;
  }
  return 0;
}

/// Null when the application has no window that a person can see.
QWidget* ActiveTopLevel() {
  QWidget* modal = QApplication::activeModalWidget();
  QWidget* active = modal != nullptr ? modal : QApplication::activeWindow();
  // A window may stay the active one for a while after it was closed.
  return active != nullptr && active->isVisible() ? active : nullptr;
}

/// A task-modal box has no owner, but must still stay above the window that it blocks.
QWidget* BoxParent(HWND owner) {
  const Peer* peer = FindPeer(owner);
  return peer != nullptr ? peer->widget->window() : ActiveTopLevel();
}

/// The text as a field that scrolls.
QWidget* MakeScrollingText(const QLabel& label, QSize size, QWidget* parent) {
  auto* field = new QPlainTextEdit(label.text(), parent);
  field->setReadOnly(true);
  field->setTextInteractionFlags(label.textInteractionFlags());
  field->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  field->setTabChangesFocus(true);
  field->setFixedSize(size);
  return field;
}

/// Puts the heading above the text, and gives a text that would not fit on the screen a field that
/// scrolls. The box keeps the text as its own.
void ArrangeText(QMessageBox& box, const QString& heading) {
  auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  auto* grid = qobject_cast<QGridLayout*>(box.layout());
  const QSize screen = box.screen()->availableSize().boundedTo(kSmallestScreen);
  // The box wraps its text at half the screen, but never beyond 500 pixels.
  const int wrapWidth = qMin(screen.width() / 2, 500);
  const QSize largest(screen.width() * 3 / 5, screen.height() * 3 / 5);
  const QRect wrapped = label->fontMetrics().boundingRect(QRect(0, 0, wrapWidth, 1 << 20),
                                                          Qt::TextWordWrap, label->text());
  const bool scrolls = wrapped.height() > largest.height() || wrapped.width() > largest.width();
  if (!scrolls && heading.isEmpty()) return;

  int row = 0, column = 0, rows = 0, columns = 0;
  grid->getItemPosition(grid->indexOf(label), &row, &column, &rows, &columns);
  grid->removeWidget(label);
  auto* body = new QWidget(&box);
  auto* lines = new QVBoxLayout(body);
  lines->setContentsMargins({});
  if (!heading.isEmpty()) {
    auto* title = new QLabel(heading, body);
    title->setTextFormat(Qt::PlainText);
    title->setWordWrap(true);
    QFont font = title->font();
    font.setBold(true);
    title->setFont(font);
    lines->addWidget(title);
  }
  lines->addWidget(scrolls ? MakeScrollingText(*label, largest, body) : label);
  label->setVisible(!scrolls);
  grid->addWidget(body, row, column, rows, columns);
}

/// Where no window manager does it, the window below would stay without the focus. The caller finds
/// it there already, as it would expect.
void GiveFocusBack(QWidget* window) {
  if (window != nullptr && window->isVisible() && QApplication::activeWindow() != window) {
    window->activateWindow();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  }
}

int Show(const QPointer<QWidget>& parent, const BCGP_MSGBOXPARAMS& parameters) {
  const KindRow& kind = KindOf(parameters.dwStyle);
  // Its parent may be destroyed while the box is open, and the box with it.
  const QPointer<QMessageBox> box = new QMessageBox(parent);
  box->setWindowModality(Qt::ApplicationModal);
  box->setWindowTitle(ToQt(parameters.lpszCaption));
  box->setIcon(IconOf(parameters.dwStyle));
  box->setStandardButtons(QMessageBox::StandardButtons(kind.buttons));
  box->setDefaultButton(kind.first);
  box->setEscapeButton(kind.escape);
  box->setTextFormat(Qt::PlainText);
  box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  box->setText(ToQt(parameters.lpszText));
  ArrangeText(*box, ToQt(parameters.lpszTitle));

  const int result = ResultOf(box->exec());
  delete box.data();
  GiveFocusBack(parent);
  return result != 0 ? result : ResultOf(kind.escape);
}

}  // namespace

int MessageBoxW(HWND owner, const std::wstring& text, const std::wstring& caption, UINT style) {
  return Show(BoxParent(owner), {owner, text, caption, {}, style});
}

int BCGPMessageBoxIndirect(const BCGP_MSGBOXPARAMS& parameters) {
  return Show(BoxParent(parameters.hwndOwner), parameters);
}

HWND AfxGetSafeOwner() {
  for (QWidget* widget = ActiveTopLevel(); widget != nullptr; widget = widget->parentWidget()) {
    const Peer* peer = FindPeer(widget);
    if (peer == nullptr) continue;
    widget->setEnabled(true);
    return peer->handle;
  }
  return nullptr;
}
