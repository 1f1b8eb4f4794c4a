#include "platform/file_dialog.h"

#include <QAbstractItemView>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QScreen>

#include "platform/machine.h"
#include "platform/path_map.h"
#include "platform/qt/peer.h"

namespace {

DWORD lastPickerError = 0;

/// The toolkit's picker with what it does not offer by itself: several folders. Their names stand
/// in quotes in the field of names.
class Picker : public QFileDialog {
 public:
  using QFileDialog::QFileDialog;

  void PickSeveralFolders() {
    setOption(DontUseNativeDialog);
    for (const char* name : {"listView", "treeView"}) {
      if (auto* view = findChild<QAbstractItemView*>(QLatin1String(name))) {
        view->setSelectionMode(QAbstractItemView::ExtendedSelection);
      }
    }
    names_ = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  }

  QStringList Picked() const { return folders_.isEmpty() ? selectedFiles() : folders_; }

  /// The toolkit looks at the first folder alone, and drops the typed ones that it does not show.
  void accept() override {
    if (names_ == nullptr || !names_->text().contains('"')) return QFileDialog::accept();
    const QStringList folders = QuotedFolders();
    for (const QString& folder : folders) {
      if (!QFileInfo(folder).isDir()) return ReportMissing(folder);
    }
    folders_ = folders;
    if (!folders_.isEmpty()) done(Accepted);
  }

 private:
  /// Clicked folders are known by themselves, since their names may hold quotes too.
  QStringList QuotedFolders() const {
    QStringList clicked = selectedFiles();
    QStringList shown;
    for (const QString& path : clicked) shown += '"' + QFileInfo(path).fileName() + '"';
    if (names_->text() == shown.join(' ')) return clicked;
    QStringList folders;
    const QStringList parts = names_->text().split('"');
    for (qsizetype i = 1; i < parts.size(); i += 2)
      folders += directory().absoluteFilePath(parts[i]);
    return folders;
  }

  void ReportMissing(const QString& folder) {
    QMessageBox::warning(this, windowTitle(),
                         tr("%1\nDirectory not found.\nPlease verify the correct directory name "
                            "was given.")
                             .arg(folder));
  }

  QLineEdit* names_ = nullptr;  ///< Only where several folders may be picked.
  QStringList folders_;
};

/// "Sounds|*.wav;*.ogg||" as {"Sounds (*.wav *.ogg)"}.
QStringList ToNameFilters(const QString& filter) {
  const QStringList parts = filter.split('|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size() && !parts[i].isEmpty(); i += 2) {
    QStringList patterns = parts[i + 1].split(';', Qt::SkipEmptyParts);
    // There, every file has a dot in its name.
    patterns.replaceInStrings(QStringLiteral("*.*"), QStringLiteral("*"));
    if (!patterns.isEmpty()) filters += parts[i] + QStringLiteral(" (") + patterns.join(' ') + ')';
  }
  return filters;
}

/// The innermost folder of the path that exists; empty when there is none.
QString ExistingFolder(QString path) {
  while (!path.isEmpty() && !QFileInfo(path).isDir()) {
    const QString parent = QFileInfo(path).path();
    if (parent == path) return {};
    path = parent;
  }
  return path;
}

/// Opens the picker where the start says: a folder, or a proposed file. One that has no place here
/// leaves the choice to the toolkit, so that the user can put it right.
void SetStart(QFileDialog& dialog, const std::wstring& start, bool folder) {
  const QString native = ToQt(NativePath(start));
  if (native.isEmpty()) return;
  const QFileInfo info(native);
  const QString place = ExistingFolder(folder || info.isDir() ? native : info.absolutePath());
  if (!place.isEmpty()) dialog.setDirectory(place);
  if (!folder && !info.isDir()) dialog.selectFile(info.fileName());
}

QWidget* ParentOf(const CWnd* owner) {
  const Peer* peer = owner != nullptr ? FindPeer(owner->GetSafeHwnd()) : nullptr;
  return peer != nullptr ? peer->widget->window() : nullptr;
}

}  // namespace

DWORD CommDlgExtendedError() { return lastPickerError; }

CFileDialog::CFileDialog(OpenFileDialogFlag, std::nullptr_t, const wchar_t* fileName, DWORD flags,
                         const wchar_t* filter, CWnd* parent, DWORD /*size*/, BOOL /*vistaStyle*/)
    : CFileDialog(Kind::kFile, fileName, flags, filter, parent) {}

CFileDialog::CFileDialog(Kind kind, const wchar_t* start, DWORD flags, const wchar_t* filter,
                         CWnd* parent)
    : kind_(kind),
      start_(start != nullptr ? start : L""),
      filter_(filter != nullptr ? filter : L""),
      parent_(parent) {
  m_ofn.Flags = flags;
}

INT_PTR CFileDialog::DoModal() {
  const bool several = (m_ofn.Flags & OFN_ALLOWMULTISELECT) != 0;
  const bool folder = kind_ == Kind::kFolder;
  picked_.clear();
  lastPickerError = CheckStart();
  if (lastPickerError != 0) return IDCANCEL;

  // The owner may be destroyed while the picker is open, and the picker with it.
  const QPointer<Picker> dialog = new Picker(ParentOf(parent_));
  dialog->setWindowModality(Qt::ApplicationModal);
  dialog->setOption(QFileDialog::HideNameFilterDetails);
  dialog->setOption(QFileDialog::DontUseNativeDialog, GetMachine().UsesToolkitPickers());
  const bool mustExist = (m_ofn.Flags & OFN_FILEMUSTEXIST) != 0;
  dialog->setFileMode(folder      ? QFileDialog::Directory
                      : several   ? QFileDialog::ExistingFiles
                      : mustExist ? QFileDialog::ExistingFile
                                  : QFileDialog::AnyFile);
  dialog->setOption(QFileDialog::ShowDirsOnly, folder);
  if (const QStringList filters = ToNameFilters(ToQt(filter_)); !filters.isEmpty()) {
    dialog->setNameFilters(filters);
  }
  if (folder && several) dialog->PickSeveralFolders();
  SetStart(*dialog, start_, folder);
  dialog->setProperty("pickerMode", !folder ? "open" : several ? "folders" : "folder");
  dialog->setProperty("pickerStart", ToQt(start_));
  dialog->setProperty("pickerFilter", ToQt(filter_));
  dialog->resize(dialog->sizeHint().boundedTo(dialog->screen()->availableSize()));

  const int result = dialog->exec();
  if (dialog == nullptr) return IDCANCEL;
  if (result == QDialog::Accepted) {
    for (const QString& path : dialog->Picked()) picked_.push_back(FromQt(path));
  }
  dialog->deleteLater();
  lastPickerError = CheckPicked();
  if (lastPickerError != 0) picked_.clear();
  return picked_.empty() ? IDCANCEL : IDOK;
}

DWORD CFileDialog::CheckStart() const {
  return start_.size() >= m_ofn.nMaxFile ? FNERR_BUFFERTOOSMALL : 0;
}

DWORD CFileDialog::CheckPicked() const {
  std::size_t needed = 0;
  for (const std::wstring& path : picked_) needed += path.size() + 1;
  return needed > m_ofn.nMaxFile ? FNERR_BUFFERTOOSMALL : 0;
}

CString CFileDialog::GetPathName() const { return picked_.empty() ? CString() : picked_.front(); }

CString CFileDialog::GetNextPathName(POSITION& position) const {
  if (position == 0 || position > picked_.size()) return {};
  CString path = picked_[position - 1];
  position = position < picked_.size() ? position + 1 : 0;
  return path;
}
