// A component for tests. Loading it is seen in the environment, and its objects are counted.

#include "platform/component.h"

#include <dlfcn.h>

#include <cstdlib>

namespace {

constexpr CLSID kClass = {0x12345678, 0x9ABC, 0xDEF0, {1, 2, 3, 4, 5, 6, 7, 8}};

int liveObjects = 0;

[[maybe_unused]] const bool seen = [] {
  Dl_info info = {};
  dladdr(&liveObjects, &info);
  return setenv("LOADED_COMPONENT", info.dli_fname, 1) == 0;
}();

class Transform final : public IUnknown {
 public:
  Transform() { ++liveObjects; }
  virtual ~Transform() { --liveObjects; }
  HRESULT QueryInterface(const IID& iid, void** object) override {
    if (iid != IID_IUnknown) return E_NOINTERFACE;
    *object = static_cast<IUnknown*>(this);
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

class Factory final : public IClassFactory {
 public:
  virtual ~Factory() = default;
  HRESULT QueryInterface(const IID&, void**) override { return E_NOINTERFACE; }
  std::uint32_t AddRef() override { return 2; }
  std::uint32_t Release() override { return 1; }
  HRESULT CreateInstance(IUnknown*, const IID& iid, void** object) override {
    auto* made = new Transform;
    const HRESULT status = made->QueryInterface(iid, object);
    made->Release();
    return status;
  }
  HRESULT LockServer(BOOL) override { return S_OK; }
};

}  // namespace

extern "C" HRESULT DllGetClassObject(const CLSID& classId, const IID& iid, void** factory) {
  static Factory instance;
  if (!(classId == kClass) || !(iid == IID_IClassFactory)) return REGDB_E_CLASSNOTREG;
  *factory = static_cast<IClassFactory*>(&instance);
  return S_OK;
}

extern "C" int LiveObjects() { return liveObjects; }
