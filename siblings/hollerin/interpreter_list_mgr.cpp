#include "hollerin/document_filters.h"
#include "hollerin/export.h"
#include "hollerin/filter_interpreters.h"
#include "hollerin/hollerin.h"
#include "hollerin/interpreter_list.h"
#include "hollerin/interpreter_store.h"

namespace HOLLERIN {
namespace {

/// Where a store keeps the record of the filters that its list was last brought in line with.
/// Whoever empties the value asks for the next time, whatever the machine has.
constexpr const wchar_t* kRecordSection = L"Filters";
constexpr const wchar_t* kRecordKey = L"RegFileTypes";

class CConfigInterpreterListMgr : public INTERNAL_IFC::IConfigInterpreterListMgr {
 public:
  HRESULT ResyncIFilters(const StoreHandle& store, bool force) override {
    if (store == nullptr || GetMachine().Fails(L"ResyncIFilters")) return E_FAIL;
    // A list that is not stored always has the filters of the machine.
    if (!HoldsInterpreters(*store)) return S_OK;
    const std::vector<DocumentFilter> filters = FindDocumentFilters();
    const std::wstring record = FilterRecord(filters);
    const bool known = store->ReadString(kRecordSection, kRecordKey, L"") == record;
    // A missing record and that of a machine without filters look the same.
    if (known && !force && !record.empty()) return S_OK;
    std::vector<InterpreterEntry> entries = ReadInterpreters(*store);
    if (ResyncFilterInterpreters(entries, filters)) WriteInterpreters(*store, entries);
    if (!known) store->WriteString(kRecordSection, kRecordKey, record);
    return S_OK;
  }

  HRESULT LoadDefaultList(const StoreHandle& store, InterpreterListHandle& list) override {
    list.reset();
    if (store == nullptr || GetMachine().Fails(L"LoadDefaultList")) return E_FAIL;
    list = MakeInterpreterList(DefaultInterpreters());
    return S_OK;
  }
};

}  // namespace

HRESULT CreateConfigInterpreterListMgr(
    std::shared_ptr<INTERNAL_IFC::IConfigInterpreterListMgr>* manager) {
  using Handle = std::shared_ptr<INTERNAL_IFC::IConfigInterpreterListMgr>;
  return Export(L"CreateConfigInterpreterListMgr", manager, []() -> std::optional<Handle> {
    return std::make_shared<CConfigInterpreterListMgr>();
  });
}

}  // namespace HOLLERIN
