#include "controls/path.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>

#include "platform/path_map.h"
#include "platform/types.h"

namespace {

constexpr std::wstring_view kLongNetworkPrefix = L"\\\\?\\UNC\\";
constexpr std::wstring_view kLongPrefix = L"\\\\?\\";
constexpr std::wstring_view kNetworkPrefix = L"\\\\";
constexpr std::size_t kDrive = 2;  ///< Letter and colon.

wchar_t SeparatorOf(std::wstring_view path) { return IsWindowsPath(path) ? L'\\' : L'/'; }

/// Behind the next backslash from `start` on, or the path's end.
std::size_t BehindBackslash(std::wstring_view path, std::size_t start) {
  const std::size_t found = path.find(L'\\', start);
  return found == std::wstring_view::npos ? path.size() : found + 1;
}

/// Where the last part of a Windows-style root begins: the drive, or the share.
std::size_t LastRootPart(std::wstring_view path) {
  if (path.starts_with(kLongNetworkPrefix)) return BehindBackslash(path, kLongNetworkPrefix.size());
  if (path.starts_with(kLongPrefix)) return kLongPrefix.size();
  if (path.starts_with(kNetworkPrefix)) return BehindBackslash(path, kNetworkPrefix.size());
  return std::min(kDrive, path.size());
}

}  // namespace

std::wstring GetPathRoot(std::wstring_view path) {
  if (!IsWindowsPath(path)) return path.starts_with(L'/') ? L"/" : L"";
  std::wstring root(path.substr(0, BehindBackslash(path, LastRootPart(path))));
  if (!root.ends_with(L'\\')) root += L'\\';
  return root;
}

bool PathExists(std::wstring_view path) {
  const wchar_t separator = SeparatorOf(path);
  const std::size_t shortest = GetPathRoot(path).size();
  while (path.size() > shortest && path.ends_with(separator)) path.remove_suffix(1);
  const auto name = NativeFileName(path);
  struct stat status = {};
  if (!name.has_value()) return false;
  if (stat(name->c_str(), &status) == 0) return true;
  SetLastError(static_cast<DWORD>(errno));
  return false;
}

std::wstring StripLongPathPrefix(std::wstring_view path) {
  if (path.starts_with(kLongNetworkPrefix)) {
    return std::wstring(kNetworkPrefix).append(path.substr(kLongNetworkPrefix.size()));
  }
  if (path.starts_with(kLongPrefix)) path.remove_prefix(kLongPrefix.size());
  return std::wstring(path);
}

std::wstring WithSeparator(std::wstring_view path) {
  std::wstring result(path);
  const wchar_t separator = SeparatorOf(path);
  if (!path.empty() && !path.ends_with(separator)) result += separator;
  return result;
}

std::pair<std::wstring, std::wstring> SplitPath(std::wstring_view path) {
  const std::size_t last = path.rfind(SeparatorOf(path));
  if (last == std::wstring_view::npos) return {L"", std::wstring(path)};
  std::wstring folder(path.substr(0, last));
  if (GetPathRoot(path).size() == last + 1) folder += path[last];
  return {std::move(folder), std::wstring(path.substr(last + 1))};
}
