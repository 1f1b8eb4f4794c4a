#include "pages/general/folder_rows_page.h"

#include <sstream>

#include "controls/browse_for_folder.h"
#include "controls/execute_item.h"
#include "foundation/exception.h"
#include "hollerin/app_folder_mgr.h"
#include "panterow/panterow.h"

namespace {

constexpr wchar_t kSeparator = L';';

std::shared_ptr<HOLLERIN::IAppFolderMgr> MakeFolderMgr() {
  std::shared_ptr<HOLLERIN::IAppFolderMgr> manager;
  ThrowHr(HOLLERIN::CreateAppFolderMgr(&manager), L"Creating application folder manager");
  return manager;
}

/// The real paths that the edit names; nothing when its text holds an unknown placeholder.
std::wstring ExpandedText(const CEdit& edit) {
  CString text;
  edit.GetWindowText(text);
  std::wstring path;
  return SUCCEEDED(MakeFolderMgr()->ExpandPath(text.Str(), path)) ? path : std::wstring();
}

/// The paths between the separators. A text without any path stays one empty path, so that opening
/// it tells the user that there is nothing to open.
std::vector<std::wstring> SplitPaths(const std::wstring& text) {
  std::vector<std::wstring> paths;
  std::wistringstream parts(text);
  for (std::wstring part; std::getline(parts, part, kSeparator);) {
    if (!part.empty()) paths.push_back(part);
  }
  if (paths.empty()) paths.emplace_back();
  return paths;
}

}  // namespace

CFolderRowsPage::CFolderRowsPage(UINT templateId, const PageDescription& page,
                                 std::span<const EditRow> rows,
                                 std::span<const Geometry::ControlConstraint> layout)
    : CEditRowsPage(templateId, page, {rows, PANTEROW::kImageOpen, layout}) {}

void CFolderRowsPage::OnBrowse(CEdit& edit) {
  std::wstring folder;
  if (!BrowseForFolder(this, ExpandedText(edit), &folder, false)) return;
  edit.SetWindowText(MakeFolderMgr()->CollapsePath(folder));
}

void CFolderRowsPage::OnAction(const CEdit& edit) {
  const CWaitCursor wait;
  for (const std::wstring& path : SplitPaths(ExpandedText(edit))) ExecuteItemFromName(path);
}
