#include "foundation/globals.h"

#include "hollerin/hollerin.h"

ProcessObjects::ProcessObjects() { global = HOLLERIN::GetGlobalMgr(&language); }

ProcessObjects& Process() {
  static ProcessObjects objects;
  return objects;
}

namespace {

// Makes the objects when the library is loaded, not when they are first asked for.
[[maybe_unused]] const ProcessObjects& atLoad = Process();

}  // namespace

std::shared_ptr<INTERNAL_IFC::ILogMgr> ApplicationLog() {
  const auto& global = Process().global;
  return global != nullptr ? global->GetLogMgr() : nullptr;
}
