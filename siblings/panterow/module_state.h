#pragma once

// The library as a module: its own templates and images. Private to the library.

#include "platform/module.h"

namespace PANTEROW {

/// To be made current (AFX_MAINTAIN_STATE2) while the library's own resources are looked up.
const AFX_MODULE_STATE& ModuleState();

}  // namespace PANTEROW
