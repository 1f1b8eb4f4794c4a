#include "platform/file_find.h"

#include <QRegularExpression>
#include <filesystem>

#include "platform/path_map.h"
#include "platform/qt/peer.h"

namespace {

namespace fs = std::filesystem;

QRegularExpression ToExpression(const std::wstring& pattern) {
  // A bracket is an ordinary character of a name here.
  const QString wildcards = ToQt(pattern).replace('[', QStringLiteral("[[]"));
  return QRegularExpression(QRegularExpression::wildcardToRegularExpression(wildcards),
                            QRegularExpression::CaseInsensitiveOption);
}

}  // namespace

struct CFileFind::Search {
  fs::directory_iterator next;
  QRegularExpression names;
  std::error_code error;  ///< Why `next` is at its end; none when there is nothing more.
  std::wstring found;
  std::wstring current;

  /// Fills `found` with the next name that matches.
  BOOL Find() {
    while (next != fs::directory_iterator()) {
      found = FromUtf8(next->path().filename().native());
      next.increment(error);
      if (names.match(ToQt(found)).hasMatch()) return TRUE;
    }
    SetLastError(static_cast<DWORD>(error.value()));
    return FALSE;
  }
};

CFileFind::CFileFind() : search_(std::make_unique<Search>()) {}

CFileFind::~CFileFind() = default;

BOOL CFileFind::FindFile(const std::wstring& pattern) {
  *search_ = {};
  const std::wstring_view separators = IsWindowsPath(pattern) ? L"\\/" : L"/";
  const std::size_t name = pattern.find_last_of(separators) + 1;  // 0 without a separator.
  const auto folder = NativeFileName(name == 0 ? L"." : pattern.substr(0, name));
  if (!folder) return FALSE;
  search_->next = fs::directory_iterator(*folder, search_->error);
  search_->names = ToExpression(pattern.substr(name));
  return search_->Find();
}

BOOL CFileFind::FindNextFile() {
  search_->current = search_->found;
  return search_->Find();
}

CString CFileFind::GetFileName() const { return search_->current; }
