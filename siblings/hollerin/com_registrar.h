#pragma once

// Makes the registrar, which knows how the application is woven into the desktop, and brings its
// record in line with the settings. The record is the file "shell.xml" in the data folder, in the
// form of a store's file (store_xml.h).

#include <memory>

#include "ifc/com_registrar.h"
#include "ifc/config_data_mgr.h"

namespace HOLLERIN {

/// The registrar shows the state of the moment of the call; without a record nothing is registered.
/// A damaged record is put aside and logged. E_INVALIDARG for a null pointer, E_FAIL when the
/// record can be neither read nor put aside.
HRESULT CreateCOMRegistrar(std::shared_ptr<ICOMRegistrar>* registrar);

/// Registers what the section "Shell" of the confirmed configuration wants; a value that it does
/// not have stays as it is. S_FALSE when nothing had to change, as in a portable installation,
/// which leaves no trace on the computer; E_FAIL when the record cannot be kept.
HRESULT ApplyShellSettings(INTERNAL_IFC::IConfigDataMgr& configuration);

}  // namespace HOLLERIN
