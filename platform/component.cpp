#include "platform/component.h"

#include <dlfcn.h>

#include "platform/component_registry.h"
#include "platform/machine.h"
#include "platform/text.h"

namespace {

constexpr const char* kFactoryFunction = "DllGetClassObject";

/// The object of a component that the machine dictates, which is no more than there.
class CPlainObject final : public IUnknown {
 public:
  virtual ~CPlainObject() = default;
  HRESULT QueryInterface(const IID& iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = iid == IID_IUnknown ? static_cast<IUnknown*>(this) : nullptr;
    if (*object == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  std::uint32_t AddRef() override { return ++references_; }
  std::uint32_t Release() override {
    const std::uint32_t left = --references_;
    if (left == 0) delete this;
    return left;
  }

 private:
  std::uint32_t references_ = 1;
};

/// A dictated component has its place in the list, from 1, as its class.
HRESULT FindDictated(const std::vector<std::wstring>& components, const std::wstring& progId,
                     CLSID& classId) {
  for (std::size_t place = 0; place < components.size(); ++place) {
    if (CString(components[place]).CompareNoCase(progId.c_str()) != 0) continue;
    classId = {.Data1 = static_cast<std::uint32_t>(place + 1)};
    return S_OK;
  }
  return CO_E_CLASSSTRING;
}

HRESULT CreateDictated(std::size_t components, const CLSID& classId, const IID& iid,
                       void** object) {
  const bool known =
      classId == CLSID{.Data1 = classId.Data1} && classId.Data1 != 0 && classId.Data1 <= components;
  if (!known) return REGDB_E_CLASSNOTREG;
  auto* plain = new CPlainObject;
  const HRESULT status = plain->QueryInterface(iid, object);
  plain->Release();
  return status;
}

/// Loads the shared object and finds its factory function; one without is let go of again.
HRESULT LoadFactoryFunction(const std::string& library, GetClassObjectFunction*& function) {
  void* loaded = dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (loaded == nullptr) return CO_E_DLLNOTFOUND;
  function = reinterpret_cast<GetClassObjectFunction*>(dlsym(loaded, kFactoryFunction));
  if (function != nullptr) return S_OK;
  dlclose(loaded);
  return CO_E_ERRORINDLL;
}

HRESULT CreateRegistered(const CLSID& classId, const IID& iid, void** object) {
  const auto library = FindComponentLibrary(classId);
  if (!library) return REGDB_E_CLASSNOTREG;
  if (library->empty()) return CO_E_DLLNOTFOUND;
  GetClassObjectFunction* function = nullptr;
  if (const HRESULT status = LoadFactoryFunction(*library, function); FAILED(status)) return status;
  void* made = nullptr;
  const HRESULT status = function(classId, IID_IClassFactory, &made);
  if (FAILED(status)) return status;
  auto* factory = static_cast<IClassFactory*>(made);
  if (factory == nullptr) return CO_E_ERRORINDLL;
  const HRESULT created = factory->CreateInstance(nullptr, iid, object);
  factory->Release();
  // An object that is not there must not look created.
  return SUCCEEDED(created) && *object == nullptr ? CO_E_ERRORINDLL : created;
}

}  // namespace

HRESULT CLSIDFromProgID(const std::wstring& progId, CLSID* classId) {
  if (classId == nullptr) return E_POINTER;
  if (GetMachine().Fails(L"CLSIDFromProgID")) return E_FAIL;
  if (!IsProgId(progId)) return CO_E_CLASSSTRING;
  if (const auto dictated = GetMachine().Components()) {
    return FindDictated(*dictated, progId, *classId);
  }
  const auto found = FindComponent(progId);
  if (!found) return CO_E_CLASSSTRING;
  *classId = *found;
  return S_OK;
}

HRESULT CoCreateInstance(const CLSID& classId, IUnknown* outer, DWORD context, const IID& iid,
                         void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (outer != nullptr) return CLASS_E_NOAGGREGATION;
  if (GetMachine().Fails(L"CoCreateInstance")) return E_FAIL;
  if ((context & CLSCTX_INPROC_SERVER) == 0) return REGDB_E_CLASSNOTREG;
  if (const auto dictated = GetMachine().Components()) {
    return CreateDictated(dictated->size(), classId, iid, object);
  }
  return CreateRegistered(classId, iid, object);
}
