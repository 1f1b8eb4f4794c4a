#pragma once

// Components: objects that other programs supply, found by a programmatic identifier. How one is
// registered is described in docs/files.md.

#include <cstdint>
#include <string>

#include "platform/types.h"

struct GUID {
  std::uint32_t Data1 = 0;
  std::uint16_t Data2 = 0;
  std::uint16_t Data3 = 0;
  std::uint8_t Data4[8] = {};
  bool operator==(const GUID&) const = default;
};
using CLSID = GUID;
using IID = GUID;

constexpr IID IID_IUnknown = {0, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
constexpr IID IID_IClassFactory = {1, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

constexpr HRESULT E_NOINTERFACE = static_cast<HRESULT>(0x80004002U);
constexpr HRESULT E_POINTER = static_cast<HRESULT>(0x80004003U);
constexpr HRESULT CLASS_E_NOAGGREGATION = static_cast<HRESULT>(0x80040110U);
constexpr HRESULT REGDB_E_CLASSNOTREG = static_cast<HRESULT>(0x80040154U);
constexpr HRESULT CO_E_CLASSSTRING = static_cast<HRESULT>(0x800401F3U);
constexpr HRESULT CO_E_DLLNOTFOUND = static_cast<HRESULT>(0x800401F8U);
constexpr HRESULT CO_E_ERRORINDLL = static_cast<HRESULT>(0x800401F9U);

constexpr DWORD CLSCTX_INPROC_SERVER = 0x1;
constexpr DWORD CLSCTX_INPROC_HANDLER = 0x2;
constexpr DWORD CLSCTX_LOCAL_SERVER = 0x4;
constexpr DWORD CLSCTX_REMOTE_SERVER = 0x10;
constexpr DWORD CLSCTX_ALL =
    CLSCTX_INPROC_SERVER | CLSCTX_INPROC_HANDLER | CLSCTX_LOCAL_SERVER | CLSCTX_REMOTE_SERVER;

/// What every component's object can do. It is released, never deleted.
class IUnknown {
 public:
  /// Another interface of the object, with a reference of the caller's own; E_NOINTERFACE with a
  /// null pointer when it has none.
  virtual HRESULT QueryInterface(const IID& iid, void** object) = 0;
  /// Both answer the number of references there are now.
  virtual std::uint32_t AddRef() = 0;
  virtual std::uint32_t Release() = 0;

 protected:
  ~IUnknown() = default;
};

/// Makes the objects of one class.
class IClassFactory : public IUnknown {
 public:
  virtual HRESULT CreateInstance(IUnknown* outer, const IID& iid, void** object) = 0;
  virtual HRESULT LockServer(BOOL lock) = 0;

 protected:
  ~IClassFactory() = default;
};

/// The function that a component's shared object exports under the name "DllGetClassObject": the
/// factory of the class.
using GetClassObjectFunction = HRESULT(const CLSID& classId, const IID& iid, void** factory);

/// The class that is registered under a programmatic identifier ("Acme.Transform.1"); letter case
/// does not count. CO_E_CLASSSTRING for a text that is no identifier (of letters, digits, ".", "-"
/// and "_", not beginning with "." and of at most 128 characters) and for one that is not
/// registered. No path is ever made of the text: it is compared with the registrations there are.
HRESULT CLSIDFromProgID(const std::wstring& progId, CLSID* classId);

/// Makes an object of the class. The shared object that it comes from stays loaded until the
/// process ends. All components live inside the process, so the context must have
/// CLSCTX_INPROC_SERVER; `outer` must be null. REGDB_E_CLASSNOTREG when the class is not
/// registered, CO_E_DLLNOTFOUND when its shared object cannot be loaded, CO_E_ERRORINDLL when that
/// has no factory function, else what the component answers.
HRESULT CoCreateInstance(const CLSID& classId, IUnknown* outer, DWORD context, const IID& iid,
                         void** object);
