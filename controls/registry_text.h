#pragma once

// Texts of the registry.

#include <optional>
#include <string>

#include "platform/registry.h"

/// Greatest number of characters that are read, the zero at the end included.
constexpr DWORD kMaxRegistryText = 32768;

/// The text of a value, without the zero at its end; nothing when the key or the value is missing,
/// too long, of another type than REG_SZ and REG_EXPAND_SZ, or when its bytes are no whole
/// characters with a zero at their end. Variables in the text stay as they are.
std::optional<std::wstring> ReadRegistryText(HKEY root, const wchar_t* path, const wchar_t* name);
