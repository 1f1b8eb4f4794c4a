#include "controls/shell_item.h"

#include <sys/stat.h>

#include <cerrno>
#include <tuple>

#include "platform/path_map.h"
#include "platform/text.h"

HRESULT ParseDisplayName(std::wstring_view path, ShellItem& item) {
  std::wstring native = NativePath(path);
  if (native.empty()) return E_FAIL;
  struct stat status = {};
  if (stat(ToUtf8(native).c_str(), &status) != 0) {
    SetLastError(static_cast<DWORD>(errno));
    return E_FAIL;
  }
  item = {std::move(native), status.st_dev, status.st_ino};
  return S_OK;
}

int CompareItems(const ShellItem& a, const ShellItem& b) {
  const auto left = std::tie(a.device, a.node);
  const auto right = std::tie(b.device, b.node);
  if (left == right) return 0;
  return left < right ? -1 : 1;
}
