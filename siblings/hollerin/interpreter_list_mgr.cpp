#include "hollerin/hollerin.h"
#include "platform/machine.h"

namespace HOLLERIN {
namespace {

/// The section in which a store keeps the interpreters that came from document filters.
constexpr const wchar_t* kFilterSection = L"IFilters";

/// No source lists document filters on this system, so the set found on the machine is empty and
/// never changes: bringing a store in line with it takes away the filters that the store has.
class CConfigInterpreterListMgr : public INTERNAL_IFC::IConfigInterpreterListMgr {
 public:
  HRESULT ResyncIFilters(const std::shared_ptr<INTERNAL_IFC::IConfigDataMgr>& store,
                         bool) override {
    if (store == nullptr || GetMachine().Fails(L"ResyncIFilters")) return E_FAIL;
    store->ClearSection(kFilterSection);
    return S_OK;
  }

  // Until there is a list.
  HRESULT LoadDefaultList(const std::shared_ptr<INTERNAL_IFC::IConfigDataMgr>&,
                          std::shared_ptr<INTERNAL_IFC::IConfigInterpreterList>&) override {
    return E_NOTIMPL;
  }
};

}  // namespace

HRESULT CreateConfigInterpreterListMgr(
    std::shared_ptr<INTERNAL_IFC::IConfigInterpreterListMgr>* manager) {
  if (manager == nullptr) return E_INVALIDARG;
  if (GetMachine().Fails(L"CreateConfigInterpreterListMgr")) return E_FAIL;
  *manager = std::make_shared<CConfigInterpreterListMgr>();
  return S_OK;
}

}  // namespace HOLLERIN
