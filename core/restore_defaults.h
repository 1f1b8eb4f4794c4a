#pragma once

// Puts the shipped defaults into the stores.

#include "core/config_dialog.h"

/// Replaces all values of `config` by the shipped default configuration.
void LoadDefaultConfiguration(INTERNAL_IFC::IConfigDataMgr& config);

/// Brings the interpreter list in `config` in line with the document filters of the machine.
void ResyncDocumentFilters(const StoreHandle& config);

/// Replaces all values of `master` by the shipped default master configuration with
/// "master.revert.xml" of the application folder, if there is one, laid over it.
void LoadDefaultMaster(INTERNAL_IFC::IConfigDataMgr& master);
