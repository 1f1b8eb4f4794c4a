// The shell's completion objects.

#include "platform/autocomplete.h"

#include <string>

#include "platform/machine.h"
#include "platform/qt/combo_edit_peer.h"
#include "platform/qt/path_completion.h"

namespace {

constexpr DWORD kKnownOptions = ACO_AUTOSUGGEST | ACO_AUTOAPPEND | ACO_UPDOWNKEYDROPSLIST;

class CACListISF final : public IACList2 {
 public:
  HRESULT SetOptions(DWORD options) override {
    if (GetMachine().Fails(L"SetACListOptions")) return E_FAIL;
    if (options != ACLO_FILESYSONLY) return E_INVALIDARG;
    fileSystem_ = true;
    return S_OK;
  }
  bool IsOfFileSystem() const { return fileSystem_; }

 private:
  bool fileSystem_ = false;
};

class CAutoComplete final : public IAutoComplete2, public IAutoCompleteDropDown {
 public:
  HRESULT Init(HWND edit, const std::shared_ptr<IUnknown>& list, LPCWSTR registryPath,
               LPCWSTR format) override {
    if (GetMachine().Fails(L"InitAutoComplete")) return E_FAIL;
    auto* part = FindPeerAs<ComboEditPeer>(edit);
    const auto folders = std::dynamic_pointer_cast<CACListISF>(list);
    const bool fits = part != nullptr && folders != nullptr && folders->IsOfFileSystem();
    if (!fits || registryPath != nullptr || format != nullptr) return E_INVALIDARG;
    part->StartCompletion();
    edit_ = edit;
    return S_OK;
  }

  HRESULT SetOptions(DWORD options) override {
    if (GetMachine().Fails(L"SetAutoCompleteOptions")) return E_FAIL;
    if ((options & ~kKnownOptions) != 0) return E_INVALIDARG;
    PathCompletion* completion = Completion();
    if (completion == nullptr) return E_FAIL;
    completion->SetOptions(options);
    return S_OK;
  }

  HRESULT GetDropDownStatus(DWORD* flags) override {
    const PathCompletion* completion = Completion();
    *flags = completion != nullptr && completion->IsShown() ? ACDD_VISIBLE : 0;
    return S_OK;
  }

 private:
  PathCompletion* Completion() const {
    const auto* part = FindPeerAs<ComboEditPeer>(edit_);
    return part != nullptr ? part->Completion() : nullptr;
  }

  HWND edit_ = nullptr;
};

}  // namespace

HRESULT CreateAutoComplete(std::shared_ptr<IAutoComplete>* object) {
  if (GetMachine().Fails(L"CreateAutoComplete")) return E_FAIL;
  *object = std::make_shared<CAutoComplete>();
  return S_OK;
}

HRESULT CreateACListISF(std::shared_ptr<IACList>* object) {
  if (GetMachine().Fails(L"CreateACListISF")) return E_FAIL;
  *object = std::make_shared<CACListISF>();
  return S_OK;
}

bool LacksInterface(const wchar_t* name) { return GetMachine().Fails(name); }
