#include "controls/browse_for_folder.h"

#include "controls/join_strings.h"
#include "controls/path.h"
#include "foundation/exception.h"
#include "platform/file_dialog.h"
#include "platform/messages.h"

namespace {

constexpr DWORD kNameBuffer = 260000;

}  // namespace

bool BrowseForFolder(CWnd* owner, const std::wstring& start, std::wstring* result, bool several) {
  CFolderPickerDialog picker(WithSeparator(start).c_str(), several ? OFN_ALLOWMULTISELECT : 0,
                             owner);
  picker.m_ofn.nMaxFile = kNameBuffer;
  if (picker.DoModal() != IDOK) {
    if (CommDlgExtendedError() != 0) ThrowHr(E_FAIL, L"Picking folders");
    return false;
  }
  std::vector<std::wstring> folders;
  for (POSITION place = picker.GetStartPosition(); place != 0;) {
    folders.push_back(picker.GetNextPathName(place).Str());
  }
  *result = folders.size() == 1 ? folders.front() : JoinStrings(folders, L";", true);
  return true;
}
