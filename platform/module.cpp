#include "platform/module.h"

#include <cstdio>

#include "platform/resource_script.h"

namespace {

thread_local HINSTANCE currentModule = nullptr;

const ResourceScript* CurrentResources() {
  return currentModule != nullptr ? currentModule->Resources() : nullptr;
}

void Report(const std::wstring& name, const ResourceError& error) {
  std::fprintf(stderr, "%s: the resources are damaged at offset %zu: %s\n", ToUtf8(name).c_str(),
               error.offset, error.reason.c_str());
}

}  // namespace

CModule::CModule(std::wstring name, std::span<const std::byte> script) : name_(std::move(name)) {
  ResourceError error;
  script_ = ResourceScript::Parse(script, error);
  if (script_ == nullptr) Report(name_, error);
}

CModule::~CModule() {
  if (currentModule == this) currentModule = nullptr;
}

AFX_MAINTAIN_STATE2::AFX_MAINTAIN_STATE2(const AFX_MODULE_STATE& state) : previous_(currentModule) {
  currentModule = state.Module();
}

AFX_MAINTAIN_STATE2::~AFX_MAINTAIN_STATE2() { currentModule = previous_; }

HINSTANCE AfxGetResourceHandle() { return currentModule; }

std::span<const std::byte> AfxLoadResource(LPCWSTR type, UINT id) {
  const ResourceScript* resources = CurrentResources();
  return resources != nullptr ? resources->Data(type, id) : std::span<const std::byte>();
}

HINSTANCE AfxFindMenuModule(UINT id) {
  const ResourceScript* resources = CurrentResources();
  ResourceError error;
  return resources != nullptr && resources->Menu(id, error) ? currentModule : nullptr;
}
