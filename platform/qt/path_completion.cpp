#include "platform/qt/path_completion.h"

#include <QDir>
#include <QEvent>
#include <QScopedValueRollback>
#include <algorithm>
#include <unordered_set>

#include "platform/autocomplete.h"

namespace {

constexpr int kPage = 9;  ///< Rows that Page Up and Page Down go.

int WideLength(const QString& text) { return static_cast<int>(FromQt(text).size()); }

int FieldLength(std::wstring_view text) {
  return static_cast<int>(QString::fromWCharArray(text.data(), int(text.size())).size());
}

/// Those of all completions.
std::unordered_set<const FolderReader*>& Readers() {
  static auto* readers = new std::unordered_set<const FolderReader*>;
  return *readers;
}

}  // namespace

PathCompletion::PathCompletion(HWND edit, QLineEdit& line)
    : edit_(edit), line_(&line), field_(line.focusProxy()) {
  Readers().insert(&reader_);
  if (field_ == nullptr) field_ = &line;
  QObject* const watched[] = {&line, field_, line.window()};
  for (QObject* object : watched) object->installEventFilter(this);
  connect(&line, &QLineEdit::textEdited, this, [this] { OnEdited(); });
  connect(&line, &QLineEdit::cursorPositionChanged, this,
          [this](int, int to) { OnCaretMoved(to); });
}

PathCompletion::~PathCompletion() {
  Readers().erase(&reader_);
  delete list_;
}

bool PathCompletion::IsAnyBusy() {
  return std::any_of(Readers().begin(), Readers().end(),
                     [](const FolderReader* reader) { return reader->IsBusy(); });
}

void PathCompletion::Close() {
  reader_.GiveUp();
  names_ = nullptr;  // The folder may have changed by the next time.
  if (list_ != nullptr) list_->hide();
}

bool PathCompletion::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::FocusOut:
    case QEvent::Hide:
    case QEvent::EnabledChange:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::WindowDeactivate:
    case QEvent::MouseButtonPress:
      Close();
      return false;
    default:
      return false;
  }
}

PathCompletion::Part PathCompletion::AskPart() const {
  const QString text = line_->text();
  const int length = static_cast<int>(text.size());
  Part part{0, length, line_->cursorPosition(), {}};
  if (line_->hasSelectedText()) part.caret = line_->selectionStart();
  const std::wstring wide = FromQt(text);
  AUTOCOMPLETEPART asked;
  asked.text = wide.c_str();
  asked.caret = WideLength(text.left(part.caret));
  if (SendFromToolkit(edit_, ACM_GETPART, 0, reinterpret_cast<LPARAM>(&asked)) == 0) return part;
  const int end = std::clamp(asked.end, 0, static_cast<int>(wide.size()));
  const int start = std::clamp(asked.start, 0, end);
  const std::wstring_view view = wide;
  part.start = FieldLength(view.substr(0, static_cast<std::size_t>(start)));
  part.end = FieldLength(view.substr(0, static_cast<std::size_t>(end)));
  if (asked.excluded != 0) part.excluded = ToQt(std::wstring_view(&asked.excluded, 1));
  return part;
}

bool PathCompletion::Begin(bool append) {
  if (line_ == nullptr || options_ == 0) return false;
  part_ = AskPart();
  if (line_ == nullptr) return false;
  original_ = line_->text().mid(part_.start, part_.end - part_.start);
  typed_ = original_.left(std::max(part_.caret - part_.start, 0));
  const auto path = SplitTypedPath(FromQt(typed_), FromQt(QDir::homePath()));
  if (!path) {
    Close();
    return false;
  }
  path_ = *path;
  append_ = append && (options_ & ACO_AUTOAPPEND) != 0;
  if (namesFolder_ == path_.folder && names_ != nullptr) {
    Offer();
  } else if (namesFolder_ != path_.folder || !reader_.IsBusy()) {
    Close();
    Read();
  }
  return true;
}

void PathCompletion::Read() {
  namesFolder_ = path_.folder;
  reader_.Read(namesFolder_, [this](const FolderReader::Names& names) {
    names_ = names;
    Offer();
  });
}

void PathCompletion::Offer() {
  // The answer may come late.
  if (line_ == nullptr || !field_->hasFocus() || !(AskPart() == part_)) return Close();
  const QStringList rows = Suggestions();
  if (std::exchange(append_, false)) AppendTail(rows);
  if (line_ == nullptr) return;
  shownText_ = line_->text();
  if (!rows.isEmpty() && (options_ & ACO_AUTOSUGGEST) != 0) {
    List().Open(rows);
  } else if (list_ != nullptr) {
    list_->hide();
  }
}

QStringList PathCompletion::Suggestions() const {
  QString excluded = part_.excluded;
  if (path_.windows) excluded += QLatin1Char('\\');
  QStringList rows = names_->BeginningWith(ToQt(path_.name), excluded, kMostCompletions);
  const QString folder = ToQt(path_.folder);
  for (QString& row : rows) row.prepend(folder);
  // What is typed to its end needs no suggestion.
  const auto sensitivity = path_.windows ? Qt::CaseInsensitive : Qt::CaseSensitive;
  if (rows.size() == 1 && rows.front().compare(typed_, sensitivity) == 0) rows.clear();
  return rows;
}

void PathCompletion::AppendTail(const QStringList& rows) {
  if (path_.name.empty() || part_.caret != part_.end) return;
  const auto fits = [this](Qt::CaseSensitivity sensitivity) {
    return [this, sensitivity](const QString& row) { return row.startsWith(typed_, sensitivity); };
  };
  auto row = std::find_if(rows.begin(), rows.end(), fits(Qt::CaseSensitive));
  // On this system, a name in another case is another name: it would have to change what is typed.
  if (row == rows.end() && path_.windows) {
    row = std::find_if(rows.begin(), rows.end(), fits(Qt::CaseInsensitive));
  }
  if (row == rows.end() || row->size() == typed_.size()) return;
  Replace(row->mid(typed_.size()), part_.caret, part_.caret);
  const QScopedValueRollback<bool> own(own_, true);
  if (line_ != nullptr) line_->setSelection(part_.caret, part_.end - part_.caret);
}

bool PathCompletion::OnKey(UINT key) {
  typing_ = false;
  if (line_ == nullptr) return false;
  if (!IsShown()) return OpensWith(key) && Begin(false);
  switch (key) {
    case VK_UP:
      return Move(-1), true;
    case VK_DOWN:
      return Move(1), true;
    case VK_PRIOR:
      return Move(-kPage), true;
    case VK_NEXT:
      return Move(kPage), true;
    case VK_RETURN:
    case VK_TAB:
      return Accept(), true;
    case VK_ESCAPE:
      return Restore(), true;
    default:
      return false;
  }
}

bool PathCompletion::OpensWith(UINT key) const {
  const bool arrow = key == VK_UP || key == VK_DOWN;
  if (!arrow || (options_ & ACO_UPDOWNKEYDROPSLIST) == 0) return false;
  // With the whole text selected, as after choosing a row, the arrows walk on through the combo.
  return line_->selectedText() != line_->text();
}

void PathCompletion::OnEdited() {
  if (!own_) Begin(std::exchange(typing_, false));
}

void PathCompletion::OnCaretMoved(int to) {
  if (own_ || !IsShown() || line_->text() != shownText_) return;
  if (to != part_.caret && to != part_.end) Close();
}

void PathCompletion::OnRowClicked(int row) {
  if (row < 0 || line_ == nullptr) return;
  ShowRow(row);
  if (line_ != nullptr) Accept();
}

/// By one row around the ends, where what was typed has its place; by more only up to the ends.
void PathCompletion::Move(int rows) {
  const int count = list_->Count();
  const int row = list_->Highlighted();
  if (rows < -1 || rows > 1) return ShowRow(std::clamp(row + rows, 0, count - 1));
  const int places = count + 1;
  ShowRow((row + 1 + rows + places) % places - 1);
}

void PathCompletion::ShowRow(int row) {
  list_->Highlight(row);
  Replace(row < 0 ? original_ : list_->Row(row), part_.start, part_.end);
}

void PathCompletion::Accept() {
  Close();
  line_->setCursorPosition(part_.end);
}

void PathCompletion::Restore() {
  Close();
  const int caret = part_.caret;
  if (line_->text().mid(part_.start, part_.end - part_.start) != original_) {
    Replace(original_, part_.start, part_.end);
  }
  if (line_ != nullptr) line_->setCursorPosition(caret);
}

/// The edit is told, as it keeps track of its changes.
void PathCompletion::Replace(const QString& text, int from, int to) {
  const QScopedValueRollback<bool> own(own_, true);
  line_->setSelection(from, to - from);
  const std::wstring wide = FromQt(text);
  SendFromToolkit(edit_, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(wide.c_str()));
  if (line_ == nullptr) return;
  part_.end = line_->cursorPosition();  // The text limit may have cut it.
  shownText_ = line_->text();
}

CompletionList& PathCompletion::List() {
  if (list_ == nullptr) {
    list_ = new CompletionList(*field_);
    connect(list_, &QListView::clicked, this,
            [this](const QModelIndex& index) { OnRowClicked(index.row()); });
  }
  return *list_;
}
