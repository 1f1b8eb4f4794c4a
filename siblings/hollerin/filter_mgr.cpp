#include <map>
#include <string_view>

#include "hollerin/document_filters.h"
#include "hollerin/export.h"
#include "hollerin/hollerin.h"
#include "platform/text.h"

namespace HOLLERIN {
namespace {

struct WithoutCase {
  bool operator()(const CString& a, const CString& b) const { return a.CompareNoCase(b) < 0; }
};

class CFilterMgr : public INTERNAL_IFC::IFilterMgr {
 public:
  CFilterMgr() { Look(); }

  HRESULT GetFilterExtensions(std::vector<std::wstring>& extensions, bool excludeText) override {
    extensions.clear();
    if (GetMachine().Fails(L"GetFilterExtensions")) return E_FAIL;
    Look();
    for (const DocumentFilter& filter : filters_) {
      if (!excludeText || !filter.text) extensions.push_back(filter.extension);
    }
    return S_OK;
  }

  HRESULT GetFilterLocation(const std::wstring& extension, std::wstring& location) override {
    return Tell(L"GetFilterLocation", extension, &DocumentFilter::location, location);
  }

  HRESULT GetFilterName(const std::wstring& extension, std::wstring& name) override {
    return Tell(L"GetFilterName", extension, &DocumentFilter::name, name);
  }

 private:
  void Look() {
    filters_ = FindDocumentFilters();
    places_.clear();
    for (std::size_t i = 0; i < filters_.size(); ++i) {
      places_.try_emplace(filters_[i].extension, i);
    }
  }

  HRESULT Tell(std::wstring_view operation, const std::wstring& extension,
               std::wstring DocumentFilter::*fact, std::wstring& text) const {
    text.clear();
    if (GetMachine().Fails(operation)) return E_FAIL;
    const auto place = places_.find(CString(extension));
    if (place != places_.end()) text = filters_[place->second].*fact;
    return S_OK;
  }

  std::vector<DocumentFilter> filters_;
  std::map<CString, std::size_t, WithoutCase> places_;  ///< By extension, in filters_.
};

}  // namespace

HRESULT CreateFilterMgr(std::shared_ptr<INTERNAL_IFC::IFilterMgr>* manager, const StoreHandle&) {
  return Export(L"CreateFilterMgr", manager,
                []() -> std::optional<std::shared_ptr<INTERNAL_IFC::IFilterMgr>> {
                  return std::make_shared<CFilterMgr>();
                });
}

}  // namespace HOLLERIN
