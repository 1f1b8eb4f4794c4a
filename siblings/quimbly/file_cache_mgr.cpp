// The manager of the text cache.

#include "hollerin/app_folder_mgr.h"
#include "hollerin/hollerin.h"
#include "platform/machine.h"
#include "platform/path_map.h"
#include "quimbly/cache_files.h"
#include "quimbly/quimbly.h"
#include "quimbly/text_cache.h"

namespace STOVEN {
namespace {

using INTERNAL_IFC::CacheSizeInfo;
using INTERNAL_IFC::ICacheStats;

/// The cache folder while the master configuration names none.
constexpr const wchar_t* kDefaultFolder = L"%CACHE%/quarrow";

constexpr const wchar_t* kCompacting = L"Compacting the text cache";
constexpr const wchar_t* kDeleting = L"Deleting the text cache";

/// The cache folder on this system; nothing where it cannot be made out.
std::wstring CacheFolder() {
  HOLLERIN::StoreHandle master;
  std::shared_ptr<HOLLERIN::IAppFolderMgr> folders;
  if (FAILED(HOLLERIN::GetGlobalMasterConfiguration(&master))) return {};
  if (FAILED(HOLLERIN::CreateAppFolderMgr(&folders))) return {};
  std::wstring folder = master->ReadString(L"FOLDERS", L"CacheFolder", {});
  if (folder.empty()) folder = kDefaultFolder;
  std::wstring expanded;
  if (FAILED(folders->ExpandPath(folder, expanded))) return {};
  return NativePath(expanded);
}

void Log(const std::wstring& line) {
  const auto log = HOLLERIN::GetGlobalMgr(nullptr)->GetLogMgr();
  if (log != nullptr) log->LogLine(line);
}

class CCacheStats final : public ICacheStats {
 public:
  explicit CCacheStats(const CacheFigures& figures) : figures_(figures) {}
  std::uint64_t GetItemCount() override { return figures_.items; }
  CacheSizeInfo GetSizeInfo() override { return {figures_.unused, figures_.total}; }

 private:
  CacheFigures figures_;
};

class CFileCacheMgr final : public INTERNAL_IFC::IFileCacheMgr {
 public:
  CFileCacheMgr(const std::wstring& folder, INTERNAL_IFC::IRunningStatus* status)
      : status_(status) {
    if (!folder.empty()) file_ = ToUtf8(folder) + '/' + kCacheFileName;
  }

  HRESULT CompactCache(std::wstring& error) override {
    const auto cancelled = [this] { return status_ != nullptr && status_->IsCancelled(); };
    return Change(L"CompactCache", kCompacting, error,
                  [&] { return CompactCacheFile(file_, cancelled); });
  }

  HRESULT DeleteCache(std::wstring& error) override {
    const HRESULT status =
        Change(L"DeleteCache", kDeleting, error, [this] { return DeleteCacheFiles(file_); });
    deleted_ = deleted_ || SUCCEEDED(status);
    return status;
  }

  std::shared_ptr<ICacheStats> GetCacheStats() override {
    if (GetMachine().Fails(L"GetCacheStats")) return nullptr;
    return std::make_shared<CCacheStats>(Figures());
  }

 private:
  /// What the machine dictates is the cache that was there before it was deleted.
  CacheFigures Figures() const {
    const auto dictated = GetMachine().Cache();
    if (dictated && !deleted_) return {dictated->items, 0, dictated->bytes, {}};
    if (file_.empty()) return {};
    CacheFigures figures = LookAtCache(file_);
    if (!figures.problem.empty()) {
      Log(L"The text cache cannot be read (" + figures.problem + L": " + FromUtf8(file_) + L").");
    }
    return figures;
  }

  template <class Work>
  HRESULT Change(const wchar_t* operation, const wchar_t* task, std::wstring& error, Work work) {
    if (GetMachine().Fails(operation)) {
      error = task;
      return E_FAIL;
    }
    const std::wstring problem =
        file_.empty() ? L"its folder cannot be made out" : WithPlace(work());
    if (problem.empty()) return S_OK;
    error = std::wstring(task) + L" (" + problem + L")";
    return E_FAIL;
  }

  std::wstring WithPlace(const std::wstring& problem) const {
    return problem.empty() ? problem : problem + L": " + FromUtf8(file_);
  }

  std::string file_;  ///< UTF-8; empty when the folder is not known.
  INTERNAL_IFC::IRunningStatus* status_;
  bool deleted_ = false;
};

}  // namespace

HRESULT CreateCacheMgr(const std::shared_ptr<INTERNAL_IFC::IConfigDataMgr>& /*store*/,
                       INTERNAL_IFC::IRunningStatus* status,
                       std::shared_ptr<INTERNAL_IFC::IFileCacheMgr>* manager) {
  if (manager == nullptr) return E_INVALIDARG;
  if (GetMachine().Fails(L"CreateCacheMgr")) return E_FAIL;
  *manager = std::make_shared<CFileCacheMgr>(CacheFolder(), status);
  return S_OK;
}

}  // namespace STOVEN
