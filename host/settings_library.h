#pragma once

// The settings library, loaded at run time.

#include "ifc/brisquel.h"

class QString;

/// The library's functions; loaded at the first call and kept for the life of the process. Null
/// with the reason in `error` when it cannot be loaded.
const BRISQUEL::EntryPoints* LoadSettingsLibrary(QString& error);
