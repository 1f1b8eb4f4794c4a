#include "platform/machine.h"
#include "ternwick/ternwick.h"

namespace TERNWICK {
namespace {

using StoreHandle = std::shared_ptr<INTERNAL_IFC::IConfigDataMgr>;
using StyleHandle = std::shared_ptr<INTERNAL_IFC::ITermStyle>;

constexpr const wchar_t* kSection = L"SearchTerms";
constexpr std::int32_t kBlack = 0;

class CTermStyle final : public INTERNAL_IFC::ITermStyle {
 public:
  explicit CTermStyle(COLORREF colour) : read_(colour), colour_(colour) {}
  COLORREF GetColor() const override { return colour_; }
  void SetColor(COLORREF colour) override { colour_ = colour; }
  bool IsModified() const override { return colour_ != read_; }

 private:
  COLORREF read_;
  COLORREF colour_;
};

std::wstring KeyOf(std::int32_t index) { return L"Color" + std::to_wstring(index); }

bool IsTerm(std::int32_t index) { return index >= 0 && index < kTermCount; }

class CSearchTermMgr final : public INTERNAL_IFC::ISearchTermMgr {
 public:
  HRESULT GetTermStyle(const StoreHandle& store, std::int32_t index, StyleHandle* style) override {
    if (store == nullptr || style == nullptr || !IsTerm(index)) return E_INVALIDARG;
    if (GetMachine().Fails(L"GetTermStyle")) return E_FAIL;
    const std::int32_t colour = store->ReadInt(kSection, KeyOf(index), kBlack);
    *style = std::make_shared<CTermStyle>(static_cast<COLORREF>(colour));
    return S_OK;
  }

  HRESULT SaveTermStyle(const StoreHandle& store, std::int32_t index,
                        const StyleHandle& style) override {
    if (store == nullptr || style == nullptr || !IsTerm(index)) return E_INVALIDARG;
    if (GetMachine().Fails(L"SaveTermStyle")) return E_FAIL;
    store->WriteInt(kSection, KeyOf(index), static_cast<std::int32_t>(style->GetColor()));
    return S_OK;
  }
};

}  // namespace

std::shared_ptr<INTERNAL_IFC::ISearchTermMgr> CreateSearchTermMgr() {
  if (GetMachine().Fails(L"CreateSearchTermMgr")) return nullptr;
  return std::make_shared<CSearchTermMgr>();
}

}  // namespace TERNWICK
