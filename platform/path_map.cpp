#include "platform/path_map.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <vector>

#include "platform/machine.h"
#include "platform/text.h"

namespace {

constexpr std::wstring_view kLongPrefix = L"\\\\?\\";
constexpr std::wstring_view kSeparators = L"\\/";

using Drives = std::map<wchar_t, std::wstring>;

bool HasDrive(std::wstring_view path) {
  if (path.size() < 2 || path[1] != L':') return false;
  return (path[0] >= L'A' && path[0] <= L'Z') || (path[0] >= L'a' && path[0] <= L'z');
}

/// The drive's folder, without a separator at its end; nothing for an unknown drive.
std::optional<std::wstring> DriveFolder(wchar_t letter, const Drives& drives) {
  const auto found = drives.find(letter >= L'a' ? letter - L'a' + L'A' : letter);
  if (found == drives.end() || found->second.empty()) return std::nullopt;
  return found->second.substr(0, found->second.find_last_not_of(L'/') + 1);
}

/// The names between the separators, "." and ".." resolved.
std::vector<std::wstring_view> Names(std::wstring_view path) {
  std::vector<std::wstring_view> names;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find_first_of(kSeparators), path.size());
    const std::wstring_view name = path.substr(0, end);
    path.remove_prefix(std::min(end + 1, path.size()));
    if (name == L"..") {
      if (!names.empty()) names.pop_back();
    } else if (!name.empty() && name != L".") {
      names.push_back(name);
    }
  }
  return names;
}

bool Exists(const std::wstring& nativePath) {
  struct stat status = {};
  return lstat(ToUtf8(nativePath).c_str(), &status) == 0;
}

/// The entry of the folder that is called so without regard to case: of several the first by its
/// letters, so that the answer does not depend on the folder's order. Nothing when there is none.
std::optional<std::wstring> FindWithoutCase(const std::wstring& folder, const CString& name) {
  std::optional<std::wstring> found;
  std::error_code error;
  const std::string start = folder.empty() ? "/" : ToUtf8(folder);
  for (std::filesystem::directory_iterator entry(start, error), end; !error && entry != end;
       entry.increment(error)) {
    const std::wstring candidate = FromUtf8(entry->path().filename().native());
    if (name.CompareNoCase(candidate.c_str()) != 0) continue;
    if (!found || candidate < *found) found = candidate;
  }
  return found;
}

std::wstring AppendName(const std::wstring& folder, std::wstring_view name) {
  return (folder + L'/').append(name);
}

std::wstring OnDrive(std::wstring folder, std::wstring_view rest) {
  bool known = true;
  for (const std::wstring_view name : Names(rest)) {
    std::wstring path = AppendName(folder, name);
    if (known && !Exists(path)) {
      const auto other = FindWithoutCase(folder, std::wstring(name));
      known = other.has_value();
      if (known) path = AppendName(folder, *other);
    }
    folder = std::move(path);
  }
  return folder.empty() ? L"/" : folder;
}

std::wstring NoPlace() {
  SetLastError(ENOENT);
  return {};
}

}  // namespace

bool IsWindowsPath(std::wstring_view path) {
  return HasDrive(path) || (!path.starts_with(L'/') && path.find(L'\\') != std::wstring_view::npos);
}

std::wstring NativePath(std::wstring_view path) {
  return NativePath(path, IsWindowsPath(path) ? GetMachine().Drives() : Drives());
}

std::wstring NativePath(std::wstring_view path, const Drives& drives) {
  if (path.find(L'\0') != std::wstring_view::npos) return NoPlace();
  if (!IsWindowsPath(path)) return path.empty() ? NoPlace() : std::wstring(path);
  if (path.starts_with(kLongPrefix)) path.remove_prefix(kLongPrefix.size());
  if (!HasDrive(path)) return NoPlace();
  const auto folder = DriveFolder(path[0], drives);
  return folder ? OnDrive(*folder, path.substr(2)) : NoPlace();
}

std::optional<std::string> NativeFileName(std::wstring_view path) {
  const std::wstring native = NativePath(path);
  if (native.empty()) return std::nullopt;
  return ToUtf8(native);
}
