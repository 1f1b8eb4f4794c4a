#pragma once

// The registry, read only. Its keys are those of the machine in use; the real one has none.

#include <string>
#include <vector>

#include "platform/types.h"

using LSTATUS = LONG;
using HKEY = struct RegistryKeyHandle*;

/// The one root that keys are opened from.
inline const HKEY HKEY_CURRENT_USER = reinterpret_cast<HKEY>(static_cast<UINT_PTR>(0x80000001U));

constexpr DWORD KEY_READ = 0x20019;

constexpr DWORD REG_SZ = 1;
constexpr DWORD REG_EXPAND_SZ = 2;

constexpr LSTATUS ERROR_SUCCESS = 0;
constexpr LSTATUS ERROR_FILE_NOT_FOUND = 2;
constexpr LSTATUS ERROR_INVALID_HANDLE = 6;
constexpr LSTATUS ERROR_INVALID_PARAMETER = 87;
constexpr LSTATUS ERROR_MORE_DATA = 234;

/// Opens the key at the path below the root, whatever the case of its names; to be closed with
/// RegCloseKey. `options` and `access` say nothing here. ERROR_FILE_NOT_FOUND when there is no such
/// key, ERROR_INVALID_HANDLE for any other root.
LSTATUS RegOpenKeyExW(HKEY root, LPCWSTR path, DWORD options, DWORD access, HKEY* key);

/// The type and the bytes of a value, whatever the case of its name. `size` is the room at `data`
/// in bytes and becomes the size of the value; without `data` nothing but the type and the size is
/// asked for. ERROR_MORE_DATA, with nothing copied, when the room does not suffice;
/// ERROR_FILE_NOT_FOUND when the key has no such value.
LSTATUS RegQueryValueExW(HKEY key, LPCWSTR name, DWORD* reserved, DWORD* type, BYTE* data,
                         DWORD* size);

LSTATUS RegCloseKey(HKEY key);

/// The bytes of a text as the registry keeps it: UTF-16, lower byte first, with a zero at its end.
std::vector<BYTE> ToRegistryText(const std::wstring& text);
