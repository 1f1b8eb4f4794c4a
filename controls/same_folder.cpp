#include "controls/same_folder.h"

#include "controls/path.h"
#include "controls/shell_item.h"
#include "foundation/catch_chain.h"

bool IsSameFolder(const std::wstring& first, const std::wstring& second) {
  if (!PathExists(first) || !PathExists(second)) return false;
  bool same = false;
  RunGuarded(
      [&] {
        ShellItem one;
        ShellItem two;
        ThrowHr(ParseDisplayName(first, one), L"Parsing display name for path 1");
        ThrowHr(ParseDisplayName(second, two), L"Parsing display name for path 2");
        same = CompareItems(one, two) == 0;
      },
      MakeMsgBoxDisplay, L"", L"common/NMFC_ShellFunc");
  return same;
}
