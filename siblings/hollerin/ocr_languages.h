#pragma once

// The languages that the recognition engine can read.

#include <vector>

#include "platform/machine.h"

namespace HOLLERIN {

/// Those that the machine dictates. Else every language that the engine comes in, by code,
/// available when its file of learned data is on the machine; data of a language that the engine
/// does not come in count as well, under the name of their code. The data lie in the folder that
/// TESSDATA_PREFIX names, or in a folder "tessdata" in it; without that variable, where
/// distributions put them.
std::vector<OcrLanguage> FindOcrLanguages();

}  // namespace HOLLERIN
