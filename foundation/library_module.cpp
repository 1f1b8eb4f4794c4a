#include "foundation/library_module.h"

#include "foundation/globals.h"

namespace {

const AFX_MODULE_STATE kNoModule(nullptr);
const AFX_MODULE_STATE* current = &kNoModule;

std::span<const std::byte> AfterProcessObjects(std::span<const std::byte> script) {
  Process();
  return script;
}

}  // namespace

BOOL CBrisquelApp::InitInstance() {
  CWinApp::InitInstance();
  return TRUE;
}

LibraryModule::LibraryModule(std::span<const std::byte> script)
    : module_(L"brisquel", AfterProcessObjects(script)), state_(&module_) {
  current = &state_;
  application_.InitInstance();
}

LibraryModule::~LibraryModule() { current = &kNoModule; }

const AFX_MODULE_STATE& LibraryModuleState() { return *current; }
