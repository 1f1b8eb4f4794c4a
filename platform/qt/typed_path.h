#pragma once

// The path that a user is typing. Private to the platform layer.

#include <optional>
#include <string>
#include <string_view>

struct TypedPath {
  std::wstring folder;  ///< Up to and with the last separator, "~" replaced.
  std::wstring name;    ///< The beginning of a name, behind it; may be empty.
  bool windows = false;
};

/// Splits what is typed. Nothing when it is no path that begins somewhere certain: "/", "~/", or a
/// drive of a Windows-style path. `home` is the user's own folder, without a separator at its end.
std::optional<TypedPath> SplitTypedPath(std::wstring_view typed, std::wstring_view home);
