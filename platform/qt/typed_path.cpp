#include "platform/qt/typed_path.h"

#include "platform/path_map.h"

namespace {

constexpr std::wstring_view kHome = L"~/";

}  // namespace

std::optional<TypedPath> SplitTypedPath(std::wstring_view typed, std::wstring_view home) {
  const bool windows = IsWindowsPath(typed);
  const bool atHome = typed.starts_with(kHome);
  if (!windows && !atHome && !typed.starts_with(L'/')) return std::nullopt;
  const std::size_t last = typed.find_last_of(windows ? L"\\/" : L"/");
  if (last == std::wstring_view::npos) return std::nullopt;
  TypedPath path;
  path.folder = typed.substr(0, last + 1);
  path.name = typed.substr(last + 1);
  path.windows = windows;
  if (atHome) path.folder.replace(0, 1, home);
  return path;
}
