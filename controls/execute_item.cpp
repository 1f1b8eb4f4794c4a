#include "controls/execute_item.h"

#include "controls/path.h"
#include "foundation/catch_chain.h"
#include "platform/shell.h"

namespace {

constexpr const wchar_t* kSource = L"common/NMFC_ShellFunc";

}  // namespace

void ExecuteItem(const ShellItem& item) {
  if (!OpenInDesktop(item.nativePath)) ThrowHr(kExecutingFailed, L"Executing item");
}

bool ExecuteItemFromName(const std::wstring& path) {
  ShellItem item;
  const auto parse = [&] {
    if (FAILED(ParseDisplayName(StripLongPathPrefix(path), item))) {
      ThrowHr(kUnusablePath, L"Testing folder path");
    }
  };
  const auto execute = [&] { ExecuteItem(item); };
  return SUCCEEDED(RunGuarded(parse, MakeMsgBoxDisplay, L"Parsing item", kSource)) &&
         SUCCEEDED(RunGuarded(execute, MakeMsgBoxDisplay, L"Executing item from name", kSource));
}
