#include "pages/formats/filter_list_job.h"

#include "core/extension_list.h"
#include "foundation/exception.h"
#include "hollerin/hollerin.h"

namespace {

constexpr const wchar_t* kFilters = L"Filters";
constexpr std::int32_t kSteps = 3;

// Where reports of a failure say that it happened.
constexpr std::int32_t kCreateLine = 152;
constexpr std::int32_t kResyncLine = 158;
constexpr std::int32_t kExtensionsLine = 171;

class FilterListJob {
 public:
  FilterListJob(CListCtrl& list, INTERNAL_IFC::IFilterMgr& filters, const StoreHandle& store,
                INTERNAL_IFC::IWorkProgress& progress)
      : list_(list), filters_(filters), store_(store), progress_(progress) {}

  void Run() {
    if (!Begin(1)) return;
    Resync();
    if (progress_.IsCancelled()) return;
    const std::vector<std::wstring> found = FilterExtensions();
    if (progress_.IsCancelled()) return;
    std::vector<std::wstring> extensions =
        SplitExtensions(store_->ReadString(kFilters, L"FileTypes", L""));
    extensions.insert(extensions.end(), found.begin(), found.end());
    if (Begin(2)) AddRows(extensions);
  }

 private:
  /// False when the user has cancelled. The last step is the end.
  bool Begin(std::int32_t step) {
    if (progress_.IsCancelled()) return false;
    progress_.ReportProgress(step, kSteps, 0, 0, 0);
    return true;
  }

  void Resync() {
    std::shared_ptr<INTERNAL_IFC::IConfigInterpreterListMgr> maintenance;
    ThrowHr(HOLLERIN::CreateConfigInterpreterListMgr(&maintenance),
            L"Creating config interpreter list", kCreateLine);
    ThrowHr(maintenance->ResyncIFilters(store_, true), L"Resyncing IFilters", kResyncLine);
  }

  std::vector<std::wstring> FilterExtensions() {
    const bool includeText = store_->ReadBool(kFilters, L"IncludeTextFilters", false);
    std::vector<std::wstring> extensions;
    ThrowHr(filters_.GetFilterExtensions(extensions, !includeText), L"Getting extension list",
            kExtensionsLine);
    return extensions;
  }

  void AddRows(const std::vector<std::wstring>& extensions) {
    const auto total = static_cast<std::int32_t>(extensions.size());
    for (std::int32_t row = 0; row < total && !progress_.IsCancelled(); ++row) {
      AddRow(extensions[static_cast<std::size_t>(row)]);
      progress_.ReportProgress(2, kSteps, row + 1, total, 0);
    }
  }

  void AddRow(std::wstring_view text) {
    const std::wstring extension(TrimCharacters(text, L".? "));
    const int row = list_.InsertItem(list_.GetItemCount(), extension);
    std::wstring location, name;
    filters_.GetFilterLocation(extension, location);
    filters_.GetFilterName(extension, name);
    list_.SetItemText(row, 2, location.empty() ? L"<not found>" : location);
    list_.SetItemText(row, 1, name.empty() ? L"<unknown>" : name);
  }

  CListCtrl& list_;
  INTERNAL_IFC::IFilterMgr& filters_;
  const StoreHandle& store_;
  INTERNAL_IFC::IWorkProgress& progress_;
};

}  // namespace

long FillFilterList(CListCtrl& list, INTERNAL_IFC::IFilterMgr& filters, const StoreHandle& store,
                    INTERNAL_IFC::IWorkProgress& progress) {
  FilterListJob(list, filters, store, progress).Run();
  return 0;
}
