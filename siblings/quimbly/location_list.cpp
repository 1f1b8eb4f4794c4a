#include "platform/machine.h"
#include "quimbly/location_text.h"
#include "quimbly/quimbly.h"

namespace TOLLIVER {
namespace {

using INTERNAL_IFC::Location;

class CLocationList final : public INTERNAL_IFC::ILocationList {
 public:
  explicit CLocationList(bool subfolders) : subfolders_(subfolders) {}

  void ParseText(const std::wstring& text) override {
    locations_ = ParseLocations(text, subfolders_);
  }
  std::int32_t GetCount() override { return static_cast<std::int32_t>(locations_.size()); }
  bool GetAt(std::int32_t index, Location& location) override {
    if (index < 0 || index >= GetCount()) return false;
    location = locations_[static_cast<std::size_t>(index)];
    return true;
  }
  void Add(const Location& location) override {
    if (!location.folder.empty()) locations_.push_back(location);
  }
  void Clear() override { locations_.clear(); }
  std::wstring FormatText(bool marks) override {
    return FormatLocations(locations_, subfolders_, marks);
  }

 private:
  std::vector<Location> locations_;
  bool subfolders_;
};

}  // namespace

HRESULT CreateLocationList(std::shared_ptr<INTERNAL_IFC::ILocationList>* list,
                           bool withoutSubfolders) {
  if (list == nullptr) return E_INVALIDARG;
  if (GetMachine().Fails(L"CreateLocationList")) return E_FAIL;
  *list = std::make_shared<CLocationList>(!withoutSubfolders);
  return S_OK;
}

}  // namespace TOLLIVER
