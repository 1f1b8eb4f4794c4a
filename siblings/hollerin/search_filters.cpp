// The persistent search filters of a store.

#include "hollerin/application_state.h"
#include "hollerin/hollerin.h"
#include "hollerin/search_filter_text.h"
#include "platform/machine.h"

namespace HOLLERIN {
namespace {

using INTERNAL_IFC::ISearchFilter;
using INTERNAL_IFC::ISearchFilterList;
using FilterHandle = std::shared_ptr<ISearchFilter>;

/// Keys for damaged texts that are looked at before the search for a free one is given up.
constexpr int kMaxAsideKeys = 10000;

class CSearchFilter final : public ISearchFilter {
 public:
  explicit CSearchFilter(SearchFilterValues values) : values_(std::move(values)) {}

  bool IsEnabled() override { return values_.enabled; }
  std::wstring GetName() override { return values_.name; }
  std::wstring GetValue() override { return values_.value; }
  std::int32_t GetMatchType() override { return values_.matchType; }
  std::int32_t GetFilterKind() override { return values_.kind; }
  void SetEnabled(bool enabled) override { values_.enabled = enabled; }
  void SetName(const std::wstring& name) override { values_.name = name; }
  void SetValue(const std::wstring& value) override { values_.value = value; }
  void SetMatchType(std::int32_t type) override { values_.matchType = type; }
  void SetNameKind(bool name) override {
    values_.kind = name ? INTERNAL_IFC::kNameFilter : INTERNAL_IFC::kLocationFilter;
  }
  FilterHandle Clone() override { return std::make_shared<CSearchFilter>(values_); }

 private:
  SearchFilterValues values_;
};

/// What a list holds, whoever made it and its filters.
std::vector<SearchFilterValues> ValuesOf(ISearchFilterList& list) {
  std::vector<SearchFilterValues> values;
  for (std::int32_t index = 0; index < list.GetCount(); ++index) {
    const FilterHandle filter = list.GetAt(index);
    if (filter == nullptr) continue;
    values.push_back({filter->IsEnabled(), filter->GetFilterKind(), filter->GetName(),
                      filter->GetMatchType(), filter->GetValue()});
  }
  return values;
}

class CSearchFilterList final : public ISearchFilterList {
 public:
  explicit CSearchFilterList(std::vector<SearchFilterValues> loaded) : loaded_(std::move(loaded)) {
    for (const SearchFilterValues& values : loaded_) {
      filters_.push_back(std::make_shared<CSearchFilter>(values));
    }
  }

  bool IsModified() override { return ValuesOf(*this) != loaded_; }
  std::int32_t GetCount() override { return static_cast<std::int32_t>(filters_.size()); }
  void Add(const FilterHandle& filter) override {
    if (filter != nullptr) filters_.push_back(filter);
  }
  void RemoveAt(std::int32_t index) override {
    if (Has(index)) filters_.erase(filters_.begin() + index);
  }
  void SetAt(std::int32_t index, const FilterHandle& filter) override {
    if (Has(index) && filter != nullptr) filters_[static_cast<std::size_t>(index)] = filter;
  }
  FilterHandle GetAt(std::int32_t index) override {
    return Has(index) ? filters_[static_cast<std::size_t>(index)] : nullptr;
  }

 private:
  bool Has(std::int32_t index) { return index >= 0 && index < GetCount(); }

  std::vector<FilterHandle> filters_;
  std::vector<SearchFilterValues> loaded_;
};

void Report(const std::wstring& key) {
  const auto& log = GetApplicationState().application.log;
  if (log == nullptr) return;
  log->LogLine(
      std::wstring(L"The stored search filters were damaged. Their text was put aside as ") +
      kSearchFilterSection + L"/" + key + L".");
}

/// Moves the stored text to a key that is free. False when there is none.
bool PutAside(INTERNAL_IFC::IConfigDataMgr& store, const std::wstring& text) {
  for (int number = 1; number <= kMaxAsideKeys; ++number) {
    const std::wstring key = kSearchFilterListKey + (L".damaged-" + std::to_wstring(number));
    if (!store.ReadString(kSearchFilterSection, key, {}).empty()) continue;
    store.WriteString(kSearchFilterSection, key, text);
    store.WriteString(kSearchFilterSection, kSearchFilterListKey, {});
    Report(key);
    return true;
  }
  return false;
}

/// The stored filters; a damaged text makes way and leaves none. S_FALSE in that case, E_FAIL when
/// it could not make way.
HRESULT ReadFilters(INTERNAL_IFC::IConfigDataMgr& store, std::vector<SearchFilterValues>& filters) {
  const std::wstring text = store.ReadString(kSearchFilterSection, kSearchFilterListKey, {});
  if (auto parsed = ParseSearchFilters(text)) {
    filters = std::move(*parsed);
    return S_OK;
  }
  return PutAside(store, text) ? S_FALSE : E_FAIL;
}

}  // namespace

HRESULT LoadSearchFilterList(const StoreHandle& store, std::shared_ptr<ISearchFilterList>* list) {
  if (list == nullptr) return E_INVALIDARG;
  if (GetMachine().Fails(L"LoadSearchFilterList")) return E_FAIL;
  std::vector<SearchFilterValues> filters;
  const HRESULT status = store != nullptr ? ReadFilters(*store, filters) : S_OK;
  if (SUCCEEDED(status)) *list = std::make_shared<CSearchFilterList>(std::move(filters));
  return status;
}

HRESULT SaveSearchFilterList(const StoreHandle& store,
                             const std::shared_ptr<ISearchFilterList>& list) {
  if (list == nullptr) return E_INVALIDARG;
  if (GetMachine().Fails(L"SaveSearchFilterList")) return E_FAIL;
  if (store == nullptr) return S_FALSE;
  // What stands there may have come from elsewhere since the list was loaded.
  std::vector<SearchFilterValues> replaced;
  if (FAILED(ReadFilters(*store, replaced))) return E_FAIL;
  store->WriteString(kSearchFilterSection, kSearchFilterListKey,
                     FormatSearchFilters(ValuesOf(*list)));
  return S_OK;
}

HRESULT CreateBlankSearchFilter(std::shared_ptr<ISearchFilter>* filter) {
  if (filter == nullptr) return E_INVALIDARG;
  if (GetMachine().Fails(L"CreateBlankSearchFilter")) return E_FAIL;
  *filter = std::make_shared<CSearchFilter>(SearchFilterValues());
  return S_OK;
}

}  // namespace HOLLERIN
