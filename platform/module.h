#pragma once

// Modules and their resources. A shared library that carries dialogs embeds one compiled resource
// script and registers it as a module; resources are looked up in the module that is current.

#include <memory>
#include <span>

#include "platform/text.h"
#include "platform/types.h"

class ResourceScript;

/// A loaded library with its compiled resource script. Lives as long as the library.
class CModule {
 public:
  /// `script` are the bytes of a compiled resource script (.res); they must outlive the module. A
  /// damaged script is reported once on standard error, with its offset, and leaves the module
  /// without resources.
  CModule(std::wstring name, std::span<const std::byte> script);
  ~CModule();
  CModule(const CModule&) = delete;
  CModule& operator=(const CModule&) = delete;

  const std::wstring& Name() const { return name_; }
  /// Null when the script is damaged.
  const ResourceScript* Resources() const { return script_.get(); }

 private:
  std::wstring name_;
  std::unique_ptr<ResourceScript> script_;
};

/// The static module state of one library.
class AFX_MODULE_STATE {
 public:
  explicit AFX_MODULE_STATE(HINSTANCE module) : module_(module) {}
  HINSTANCE Module() const { return module_; }

 private:
  HINSTANCE module_;
};

/// Makes a module state current for as long as the object lives, also when an exception passes.
class AFX_MAINTAIN_STATE2 {
 public:
  explicit AFX_MAINTAIN_STATE2(const AFX_MODULE_STATE& state);
  ~AFX_MAINTAIN_STATE2();
  AFX_MAINTAIN_STATE2(const AFX_MAINTAIN_STATE2&) = delete;
  AFX_MAINTAIN_STATE2& operator=(const AFX_MAINTAIN_STATE2&) = delete;

 private:
  HINSTANCE previous_;
};

/// The current module; null when no library has made its state current.
HINSTANCE AfxGetResourceHandle();

/// Links a library's module with the resources of an extension library, once.
class CDynLinkLibrary {
 public:
  explicit CDynLinkLibrary(HINSTANCE module) : module_(module) {}
  HINSTANCE Module() const { return module_; }

 private:
  HINSTANCE module_;
};

/// The application object of a library.
class CWinApp {
 public:
  virtual ~CWinApp() = default;
  virtual BOOL InitInstance() { return TRUE; }
};

/// The bytes of a resource of a named type ("PNG") in the current module; empty when there is none.
std::span<const std::byte> AfxLoadResource(LPCWSTR type, UINT id);

/// The module whose resources hold that menu: the current one, or null.
HINSTANCE AfxFindMenuModule(UINT id);
