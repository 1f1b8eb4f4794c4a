#include "controls/registry_text.h"

#include <vector>

#include "platform/text.h"

namespace {

constexpr std::size_t kCharacter = 2;  // Bytes of one character.

/// Closes the key at the end of its life.
class OpenedKey {
 public:
  OpenedKey(HKEY root, const wchar_t* path) {
    if (RegOpenKeyExW(root, path, 0, KEY_READ, &key_) != ERROR_SUCCESS) key_ = nullptr;
  }
  ~OpenedKey() {
    if (key_ != nullptr) RegCloseKey(key_);
  }
  OpenedKey(const OpenedKey&) = delete;
  OpenedKey& operator=(const OpenedKey&) = delete;
  HKEY Get() const { return key_; }

 private:
  HKEY key_ = nullptr;
};

bool IsText(DWORD type, const std::vector<BYTE>& bytes) {
  if (type != REG_SZ && type != REG_EXPAND_SZ) return false;
  const std::size_t size = bytes.size();
  if (size < kCharacter || size % kCharacter != 0) return false;
  return bytes[size - 2] == 0 && bytes[size - 1] == 0;
}

}  // namespace

std::optional<std::wstring> ReadRegistryText(HKEY root, const wchar_t* path, const wchar_t* name) {
  const OpenedKey key(root, path);
  if (key.Get() == nullptr) return std::nullopt;
  std::vector<BYTE> bytes(kMaxRegistryText * kCharacter);
  DWORD type = 0;
  auto size = static_cast<DWORD>(bytes.size());
  if (RegQueryValueExW(key.Get(), name, nullptr, &type, bytes.data(), &size) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  bytes.resize(size);
  if (!IsText(type, bytes)) return std::nullopt;
  bytes.resize(size - kCharacter);
  return FromUtf16(bytes);
}
