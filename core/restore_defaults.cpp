#include "core/restore_defaults.h"

#include "foundation/exception.h"
#include "hollerin/hollerin.h"

namespace {

void CopyStore(INTERNAL_IFC::IConfigDataMgr& from, INTERNAL_IFC::IConfigDataMgr& to) {
  std::string values;
  from.SaveToNarrowText(values);
  to.Clear();
  to.LoadFromNarrowText(values);
}

}  // namespace

void LoadDefaultConfiguration(INTERNAL_IFC::IConfigDataMgr& config) {
  StoreHandle defaults;
  ThrowHr(HOLLERIN::LoadMainDefaultConfiguration(&defaults), L"Loading default configuration");
  CopyStore(*defaults, config);
}

void ResyncDocumentFilters(const StoreHandle& config) {
  std::shared_ptr<INTERNAL_IFC::IConfigInterpreterListMgr> interpreters;
  ThrowHr(HOLLERIN::CreateConfigInterpreterListMgr(&interpreters), L"Creating list mgr");
  interpreters->ResyncIFilters(config, true);
}

void LoadDefaultMaster(INTERNAL_IFC::IConfigDataMgr& master) {
  StoreHandle defaults;
  ThrowHr(HOLLERIN::CreateDefaultMasterConfiguration(&defaults, HOLLERIN::IsPortableInstall() != 0),
          L"Loading default master configuration");
  // Installations without that file are the rule.
  std::wstring folder;
  if (SUCCEEDED(HOLLERIN::GetAppPath(&folder))) defaults->LoadFile(folder, L"master.revert.xml");
  CopyStore(*defaults, master);
}
