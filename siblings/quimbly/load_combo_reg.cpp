// Histories of drop-down lists.

#include "ifc/load_combo_reg.h"

#include "platform/controls.h"
#include "platform/machine.h"
#include "quimbly/entry_list.h"
#include "quimbly/quimbly.h"

namespace TOLLIVER {
namespace {

using StoreHandle = std::shared_ptr<INTERNAL_IFC::IConfigDataMgr>;

/// A section ends where so many keys in a row are missing. More than the longest list that the
/// user can ask for, so that a damaged one is read to its end.
constexpr int kGreatestGap = 1000;

/// The history that Fill shows, and the most of its entries that a list is good for.
constexpr const wchar_t* kLookInHistory = L"RecentFolders";
constexpr std::size_t kMostLookIn = 100;

/// Fills the list and leaves the text with its selection as the user left it.
void FillRows(CComboBox& combo, const std::vector<CString>& items) {
  CString text;
  combo.GetWindowText(text);
  const DWORD selection = combo.GetEditSel();
  combo.ResetContent();
  int shown = -1;
  for (const CString& item : items) {
    const int row = combo.InsertString(-1, item);  // Newest first, also where the combo sorts.
    if (item == text) shown = row;
  }
  if (shown >= 0) {
    combo.SetCurSel(shown);
  } else {
    combo.SetWindowText(text);
  }
  combo.SetEditSel(LOWORD(selection), HIWORD(selection));
}

class CLoadComboReg final : public INTERNAL_IFC::ILoadComboReg {
 public:
  explicit CLoadComboReg(StoreHandle store) : store_(std::move(store)) {}

  HRESULT Exchange(CComboBox* combo, bool aboutToDrop) override {
    if (combo == nullptr) return E_INVALIDARG;
    std::vector<CString> items;
    if (Refuses(L"Exchange")) return E_FAIL;
    Read(items);
    FillRows(*combo, items);
    if (!aboutToDrop && !items.empty()) combo->SetCurSel(0);
    return S_OK;
  }

  HRESULT Fill(CComboBox* combo, bool /*forced*/, bool keepText, bool labelled,
               const INTERNAL_IFC::ShownEntry& shown) override {
    if (combo == nullptr || shown == nullptr) return E_INVALIDARG;
    if (GetMachine().Fails(L"Fill")) return E_FAIL;
    std::vector<CString> rows;
    for (const CString& entry : ReadSection(kLookInHistory, kMostLookIn)) {
      const CString row = shown(entry);
      rows.push_back(labelled ? row : entry);
    }
    FillRows(*combo, rows);
    const int count = static_cast<int>(rows.size());
    for (int row = 0; row < count; ++row) {
      combo->SetItemData(row, static_cast<DWORD_PTR>(row));
    }
    if (!keepText && count > 0) combo->SetCurSel(0);
    return S_OK;
  }

  HRESULT SelectList(const CString& section, std::int32_t maximum) override {
    if (GetMachine().Fails(L"SelectList")) return E_FAIL;
    if (section.IsEmpty() || maximum < 0) return E_INVALIDARG;
    section_ = section.Str();
    maximum_ = static_cast<std::size_t>(maximum);
    return S_OK;
  }

  HRESULT GetItems(std::vector<CString>& items) override {
    if (Refuses(L"GetItems")) return E_FAIL;
    Read(items);
    return S_OK;
  }

  HRESULT SetItems(const std::vector<CString>& items) override {
    if (Refuses(L"SetItems")) return E_FAIL;
    EntryList list(maximum_);
    for (const CString& item : items) list.Add(item.Str());
    store_->ClearSection(section_);
    int key = 0;
    for (const CString& entry : list.Take()) {
      store_->WriteString(section_, std::to_wstring(key++), entry.Str());
    }
    return S_OK;
  }

 private:
  bool Refuses(const wchar_t* operation) const {
    return section_.empty() || GetMachine().Fails(operation);
  }

  void Read(std::vector<CString>& items) const { items = ReadSection(section_, maximum_); }

  std::vector<CString> ReadSection(const std::wstring& section, std::size_t maximum) const {
    EntryList list(maximum);
    int missing = 0;
    for (int key = 0; missing < kGreatestGap && !list.Full(); ++key) {
      const std::wstring entry = store_->ReadString(section, std::to_wstring(key), {});
      missing = entry.empty() ? missing + 1 : 0;
      list.Add(entry);
    }
    return list.Take();
  }

  StoreHandle store_;
  std::wstring section_;
  std::size_t maximum_ = 0;
};

}  // namespace

HRESULT CreateLoadComboReg(const StoreHandle& store,
                           std::shared_ptr<INTERNAL_IFC::ILoadComboReg>* provider) {
  if (store == nullptr || provider == nullptr) return E_INVALIDARG;
  if (GetMachine().Fails(L"CreateLoadComboReg")) return E_FAIL;
  *provider = std::make_shared<CLoadComboReg>(store);
  return S_OK;
}

}  // namespace TOLLIVER
