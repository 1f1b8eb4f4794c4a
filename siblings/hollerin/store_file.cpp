// What a store does with files.

#include <cerrno>

#include "hollerin/store.h"
#include "hollerin/store_xml.h"
#include "hollerin/system_file.h"
#include "platform/machine.h"
#include "platform/text.h"

namespace HOLLERIN {
namespace {

HRESULT FailWith(int error) {
  SetLastError(static_cast<DWORD>(error));
  return E_FAIL;
}

/// Whether the file at `path` holds these values, in whatever layout. A damaged one is put aside.
int CompareWithFile(const std::string& path, const Values& values, std::string_view bytes,
                    bool& equal) {
  std::string old;
  equal = false;
  const int error = ReadFile(path, old);
  if (error == ENOENT) return 0;
  if (error != 0 && error != EFBIG) return error;
  if (error == 0) {
    std::wstring reason;
    equal = old == bytes;
    if (equal) return 0;
    if (const std::optional<Values> there = ParseStoreXml(old, reason)) {
      equal = *there == values;
      return 0;
    }
  }
  std::string aside;
  return PutAside(path, aside);
}

/// Whether the reading failed because of the file itself and will fail for as long as it stands
/// there; then, and only then, it makes way.
bool IsFaultOfFile(int error) { return error == EACCES || error == EPERM || error == EFBIG; }

std::wstring ReasonOf(int error) {
  if (error == EFBIG) return L"it is too large";
  if (error == EINVAL) return L"it is not a regular file";
  return SystemText(error);
}

}  // namespace

HRESULT ConfigStore::Save() {
  if (GetMachine().Fails(L"Save")) return E_FAIL;
  if (path_.empty()) return FailWith(ENOENT);
  const std::string bytes = FormatStoreXml(values_);
  if (bytes.size() > kMaxFileSize) return FailWith(EFBIG);
  bool equal = false;
  if (const int error = CompareWithFile(path_, values_, bytes, equal)) return FailWith(error);
  if (equal) return S_FALSE;
  const int error = ReplaceFile(path_, bytes);
  return error == 0 ? S_OK : FailWith(error);
}

HRESULT ConfigStore::LoadFile(const std::wstring& folder, const std::wstring& name) {
  if (GetMachine().Fails(L"LoadFile")) return E_FAIL;
  const bool joined = folder.empty() || folder.back() == L'/';
  std::string path, bytes;
  if (!ToSystemPath(joined ? folder + name : folder + L'/' + name, path)) return FailWith(EINVAL);
  if (const int error = ReadFile(path, bytes)) return FailWith(error);
  std::wstring reason;
  std::optional<Values> values = ParseStoreXml(bytes, reason);
  if (!values) return FailWith(EBADMSG);
  for (auto& [section, entries] : *values) {
    Section& own = values_[section];
    for (auto& [key, value] : entries) own.insert_or_assign(key, std::move(value));
  }
  return S_OK;
}

std::shared_ptr<Store> OpenStore(const std::wstring& path, OpenReport& report) {
  report = {};
  std::string systemPath, bytes;
  if (!ToSystemPath(path, systemPath)) {
    report.reason = L"this is no path of a file";
    return nullptr;
  }
  RemoveLeftovers(systemPath);
  const int error = ReadFile(systemPath, bytes);
  if (error == ENOENT) return std::make_shared<ConfigStore>(Values{}, systemPath);
  if (error == 0) {
    if (std::optional<Values> values = ParseStoreXml(bytes, report.reason)) {
      report.loaded = true;
      return std::make_shared<ConfigStore>(std::move(*values), systemPath);
    }
  } else {
    report.reason = ReasonOf(error);
    if (!IsFaultOfFile(error)) return nullptr;
  }
  std::string aside;
  if (const int asideError = PutAside(systemPath, aside)) {
    report.reason += L"; it could not be put aside: " + SystemText(asideError);
    return nullptr;
  }
  report.putAside = FromUtf8(aside);
  return std::make_shared<ConfigStore>(Values{}, systemPath);
}

}  // namespace HOLLERIN
