#pragma once

// The library as a module: its embedded resources, its module state, its application object.

#include <span>

#include "platform/module.h"

/// The library's application object.
class CBrisquelApp : public CWinApp {
 public:
  BOOL InitInstance() override;
};

/// Registers the library's module at load. Exactly one static object, in the file that knows the
/// embedded resources; it comes to life after the process-wide objects and ends before them.
class LibraryModule {
 public:
  /// `script` are the bytes of the compiled resource script; they must outlive the object.
  explicit LibraryModule(std::span<const std::byte> script);
  ~LibraryModule();
  LibraryModule(const LibraryModule&) = delete;
  LibraryModule& operator=(const LibraryModule&) = delete;

 private:
  CModule module_;
  AFX_MODULE_STATE state_;
  CBrisquelApp application_;
};

/// The module state to make current (AFX_MAINTAIN_STATE2) while a dialog of the library runs. A
/// state without resources before the LibraryModule object exists.
const AFX_MODULE_STATE& LibraryModuleState();
