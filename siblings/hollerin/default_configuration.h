#pragma once

// The values that the application ships with.

#include "hollerin/application.h"

namespace HOLLERIN {

Values ShippedConfiguration();

/// A portable installation keeps its folders in `appFolder`, beside the program; otherwise they are
/// placeholders of the application-folder manager, or empty, which leaves them to the system.
Values ShippedMasterConfiguration(bool portable, const std::wstring& appFolder);

}  // namespace HOLLERIN
