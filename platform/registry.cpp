#include "platform/registry.h"

#include <algorithm>
#include <map>
#include <utility>

#include "platform/machine.h"
#include "platform/qt/peer.h"
#include "platform/text.h"

namespace {

/// Handles count on and are never given twice, so that a stale one is found out.
class OpenKeys {
 public:
  static OpenKeys& Get() {
    static OpenKeys keys;
    return keys;
  }

  HKEY Add(RegistryKey values) {
    const auto handle = reinterpret_cast<HKEY>(++last_);
    keys_.emplace(handle, std::move(values));
    return handle;
  }
  const RegistryKey* Find(HKEY key) const {
    const auto found = keys_.find(key);
    return found != keys_.end() ? &found->second : nullptr;
  }
  bool Remove(HKEY key) { return keys_.erase(key) != 0; }

 private:
  std::map<HKEY, RegistryKey> keys_;
  UINT_PTR last_ = 0;
};

const RegistryValue* FindValue(const RegistryKey& key, LPCWSTR name) {
  for (const auto& [known, value] : key) {
    if (CString(known).CompareNoCase(name) == 0) return &value;
  }
  return nullptr;
}

}  // namespace

LSTATUS RegOpenKeyExW(HKEY root, LPCWSTR path, DWORD, DWORD, HKEY* key) {
  if (key == nullptr || path == nullptr) return ERROR_INVALID_PARAMETER;
  if (root != HKEY_CURRENT_USER) return ERROR_INVALID_HANDLE;
  auto values = GetMachine().FindRegistryKey(std::wstring(L"HKEY_CURRENT_USER\\") + path);
  if (!values) return ERROR_FILE_NOT_FOUND;
  *key = OpenKeys::Get().Add(std::move(*values));
  return ERROR_SUCCESS;
}

LSTATUS RegQueryValueExW(HKEY key, LPCWSTR name, DWORD* reserved, DWORD* type, BYTE* data,
                         DWORD* size) {
  if (reserved != nullptr || (data != nullptr && size == nullptr)) return ERROR_INVALID_PARAMETER;
  const RegistryKey* values = OpenKeys::Get().Find(key);
  if (values == nullptr) return ERROR_INVALID_HANDLE;
  const RegistryValue* value = FindValue(*values, name);
  if (value == nullptr) return ERROR_FILE_NOT_FOUND;
  if (type != nullptr) *type = value->type;
  if (size == nullptr) return ERROR_SUCCESS;
  const auto length = static_cast<DWORD>(value->bytes.size());
  const DWORD room = std::exchange(*size, length);
  if (data == nullptr) return ERROR_SUCCESS;
  if (length > room) return ERROR_MORE_DATA;
  std::ranges::copy(value->bytes, data);
  return ERROR_SUCCESS;
}

LSTATUS RegCloseKey(HKEY key) {
  return OpenKeys::Get().Remove(key) ? ERROR_SUCCESS : ERROR_INVALID_HANDLE;
}

std::vector<BYTE> ToRegistryText(const std::wstring& text) {
  std::vector<BYTE> bytes;
  for (const QChar unit : ToQt(text)) {
    bytes.push_back(static_cast<BYTE>(unit.unicode() & 0xFFU));
    bytes.push_back(static_cast<BYTE>(unit.unicode() >> 8));
  }
  bytes.resize(bytes.size() + 2);
  return bytes;
}
