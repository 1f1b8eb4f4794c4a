#include "platform/qt/edit_peer.h"

#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QRegularExpressionValidator>
#include <algorithm>
#include <climits>

#include "platform/qt/control_parts.h"

namespace {

constexpr int kNoLimit = INT_MAX - 1;

void NotifyChange(const QWidget* widget) {
  if (const auto* peer = PeerOf<EditPeer>(widget)) NotifyCommand(*peer, EN_CHANGE);
}

std::pair<int, int> Clamped(int start, int end, int length) {
  if (end < 0) end = length;
  return {std::min(start, length), std::min(end, length)};
}

/// An edit of one line that is a control of its own.
class SingleEditPeer final : public LineEditPeer {
 public:
  SingleEditPeer(DWORD controlStyle, const std::wstring& initialText, QWidget* host)
      : LineEditPeer(*new QLineEdit(ToQt(initialText), host)) {
    QLineEdit* edit = &Edit();
    edit->setMaxLength(kNoLimit);
    edit->setReadOnly((controlStyle & ES_READONLY) != 0);
    if ((controlStyle & ES_NUMBER) != 0) {
      const QRegularExpression digits(QStringLiteral("[0-9]*"));
      edit->setValidator(new QRegularExpressionValidator(digits, edit));
    }
    QObject::connect(edit, &QLineEdit::textChanged, edit, [edit] { NotifyChange(edit); });
  }
};

/// An edit of several lines. Tab leaves it, and a limit stops what is typed or pasted.
class TextEditWidget final : public QPlainTextEdit {
 public:
  using QPlainTextEdit::QPlainTextEdit;

  int limit = kNoLimit;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const bool adds = !event->text().isEmpty() && event->text().at(0) >= QLatin1Char(' ');
    if (adds && Room() == 0) return event->accept();
    if (!event->matches(QKeySequence::InsertLineSeparator)) {
      return QPlainTextEdit::keyPressEvent(event);
    }
    // Every Enter ends a line; with Shift the toolkit would insert a separator that ends none.
    QKeyEvent enter(event->type(), Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    QPlainTextEdit::keyPressEvent(&enter);
    event->setAccepted(enter.isAccepted());
  }
  void insertFromMimeData(const QMimeData* source) override {
    insertPlainText(source->text().left(Room()));
  }

 private:
  int Room() const {
    const auto length = document()->characterCount() - 1 - textCursor().selectedText().size();
    return std::max(0, limit - int(length));
  }
};

class TextEditPeer final : public EditPeer {
 public:
  TextEditPeer(DWORD controlStyle, const std::wstring& initialText, QWidget* host) {
    auto* edit = new TextEditWidget(host);
    widget = edit;
    kind = ControlKind::Edit;
    edit->setTabChangesFocus(true);
    const bool scrolls = (controlStyle & WS_HSCROLL) != 0;
    edit->setLineWrapMode(scrolls ? QPlainTextEdit::NoWrap : QPlainTextEdit::WidgetWidth);
    SetReadOnly((controlStyle & ES_READONLY) != 0);
    TextEditPeer::SetText(initialText);
    QObject::connect(edit, &QPlainTextEdit::textChanged, edit, [edit] { NotifyChange(edit); });
  }

  /// Lines end with carriage return and line feed.
  std::wstring Text() const override {
    // The raw text: the plain one has blanks in the place of those that do not break.
    QString lines = Edit().document()->toRawText();
    return FromQt(lines.replace(QChar::ParagraphSeparator, QStringLiteral("\r\n")));
  }
  /// An edit of several lines tells nobody that it was filled.
  void SetText(const std::wstring& newText) override {
    const QSignalBlocker quiet(&Edit());
    Edit().setPlainText(ToQt(newText));
  }

  void SetSelection(int start, int end) override {
    QTextCursor cursor = Edit().textCursor();
    if (start < 0) {
      cursor.clearSelection();
    } else {
      const int length = Edit().document()->characterCount() - 1;
      const auto [first, last] = Clamped(start, end, length);
      cursor.setPosition(first);
      cursor.setPosition(last, QTextCursor::KeepAnchor);
    }
    Edit().setTextCursor(cursor);
  }
  std::pair<int, int> Selection() const override {
    const QTextCursor cursor = Edit().textCursor();
    return {cursor.selectionStart(), cursor.selectionEnd()};
  }
  void SetReadOnly(bool readOnly) override {
    Edit().setReadOnly(readOnly);
    // A text that cannot be changed can still be walked through and copied by keys.
    if (readOnly)
      Edit().setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  }
  void SetLimit(int characters) override {
    static_cast<TextEditWidget&>(*widget).limit = characters > 0 ? characters : kNoLimit;
  }

 private:
  QPlainTextEdit& Edit() const { return static_cast<QPlainTextEdit&>(*widget); }
};

}  // namespace

LineEditPeer::LineEditPeer(QLineEdit& edit) {
  widget = &edit;
  kind = ControlKind::Edit;
}

QLineEdit& LineEditPeer::Edit() const { return static_cast<QLineEdit&>(*widget); }

std::wstring LineEditPeer::Text() const { return FromQt(Edit().text()); }
void LineEditPeer::SetText(const std::wstring& newText) { Edit().setText(ToQt(newText)); }

void LineEditPeer::SetSelection(int start, int end) {
  if (start < 0) return Edit().deselect();
  const auto [first, last] = Clamped(start, end, int(Edit().text().size()));
  Edit().setSelection(first, last - first);
}

std::pair<int, int> LineEditPeer::Selection() const {
  if (!Edit().hasSelectedText()) return {Edit().cursorPosition(), Edit().cursorPosition()};
  return {Edit().selectionStart(), Edit().selectionEnd()};
}

void LineEditPeer::SetReadOnly(bool readOnly) { Edit().setReadOnly(readOnly); }

void LineEditPeer::SetLimit(int characters) {
  Edit().setMaxLength(characters > 0 ? characters : kNoLimit);
}

std::unique_ptr<Peer> EditPeer::Make(DWORD style, const std::wstring& text, QWidget* host) {
  if ((style & ES_MULTILINE) != 0) return std::make_unique<TextEditPeer>(style, text, host);
  return std::make_unique<SingleEditPeer>(style, text, host);
}
