#include "hollerin/app_folder_mgr.h"

#include <map>
#include <string_view>

#include "hollerin/user_folders.h"
#include "platform/machine.h"
#include "platform/path_map.h"
#include "platform/text.h"

namespace HOLLERIN {
namespace {

/// Placeholder and folder.
using Folders = std::map<std::wstring, std::wstring>;

constexpr std::wstring_view kPlaceholderLetters = L"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_";

/// In a Windows-style path both slashes separate; in any other one the backslash is a letter.
bool IsSeparator(wchar_t character, bool windows) {
  return character == L'/' || (windows && character == L'\\');
}

/// The length of the text "%NAME%" at the start of `text`; 0 when there is none. A percent sign
/// that begins no such text, as in the name "100%", stands for itself.
std::size_t PlaceholderLength(std::wstring_view text) {
  if (!text.starts_with(L'%')) return 0;
  const std::size_t end = text.find_first_not_of(kPlaceholderLetters, 1);
  if (end == std::wstring_view::npos || end == 1 || text[end] != L'%') return 0;
  return end + 1;
}

bool SameNames(std::wstring_view a, std::wstring_view b, bool windows) {
  if (!windows) return a == b;
  const auto spell = [](std::wstring text) {
    for (wchar_t& character : text) {
      if (character == L'/') character = L'\\';
    }
    return CString(std::move(text));
  };
  return spell(std::wstring(a)).CompareNoCase(spell(std::wstring(b))) == 0;
}

/// The folder without the separators at its end; nothing is left of "/".
std::wstring_view Trimmed(std::wstring_view folder, bool windows) {
  while (!folder.empty() && IsSeparator(folder.back(), windows)) folder.remove_suffix(1);
  return folder;
}

/// Whether the path is the folder or lies in it.
bool LiesIn(std::wstring_view path, std::wstring_view folder, bool windows) {
  if (path.size() < folder.size()) return false;
  if (!SameNames(path.substr(0, folder.size()), folder, windows)) return false;
  return path.size() == folder.size() || IsSeparator(path[folder.size()], windows);
}

class CAppFolderMgr : public IAppFolderMgr {
 public:
  explicit CAppFolderMgr(Folders folders) : folders_(std::move(folders)) {
    // A placeholder without a folder would lead to the root.
    std::erase_if(folders_,
                  [](const auto& row) { return row.first.empty() || row.second.empty(); });
  }

  std::wstring CollapsePath(const std::wstring& path) override {
    if (GetMachine().Fails(L"CollapsePath")) return path;
    const bool windows = IsWindowsPath(path);
    const std::wstring* best = nullptr;
    std::size_t length = 0;
    for (const auto& [placeholder, folder] : folders_) {
      const std::wstring_view start = Trimmed(folder, windows);
      // The root itself is no place of its own: every path lies in it.
      if (start.size() <= length || !LiesIn(path, start, windows)) continue;
      best = &placeholder;
      length = start.size();
    }
    return best != nullptr ? *best + path.substr(length) : path;
  }

  HRESULT ExpandPath(const std::wstring& text, std::wstring& path) override {
    if (GetMachine().Fails(L"ExpandPath")) return E_FAIL;
    std::wstring expanded;
    for (std::size_t i = 0; i < text.size();) {
      const std::wstring_view rest = std::wstring_view(text).substr(i);
      if (const auto* row = FindPlaceholder(rest)) {
        i += row->first.size();
        AppendFolder(expanded, row->second, rest.substr(row->first.size()));
      } else if (PlaceholderLength(rest) != 0) {
        return E_FAIL;
      } else {
        expanded += text[i++];
      }
    }
    path = std::move(expanded);
    return S_OK;
  }

 private:
  /// The longest placeholder at the start of the text; null when there is none.
  const Folders::value_type* FindPlaceholder(std::wstring_view text) const {
    const Folders::value_type* best = nullptr;
    for (const auto& row : folders_) {
      if (!text.starts_with(row.first)) continue;
      if (best == nullptr || row.first.size() > best->first.size()) best = &row;
    }
    return best;
  }

  /// Where the text goes on with a separator, the folder does not bring one too.
  static void AppendFolder(std::wstring& path, std::wstring_view folder, std::wstring_view rest) {
    const bool windows = IsWindowsPath(folder);
    const bool separated = !rest.empty() && IsSeparator(rest.front(), windows);
    path += separated ? Trimmed(folder, windows) : folder;
  }

  Folders folders_;
};

}  // namespace

HRESULT CreateAppFolderMgr(std::shared_ptr<IAppFolderMgr>* manager) {
  if (manager == nullptr) return E_INVALIDARG;
  if (GetMachine().Fails(L"CreateAppFolderMgr")) return E_FAIL;
  *manager = std::make_shared<CAppFolderMgr>(GetMachine().Folders().value_or(UserFolders()));
  return S_OK;
}

}  // namespace HOLLERIN
