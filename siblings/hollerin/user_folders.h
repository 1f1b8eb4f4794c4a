#pragma once

// The folders that the user's desktop keeps for applications.

#include <map>
#include <string>

namespace HOLLERIN {

/// "%CONFIG%", "%DATA%", "%CACHE%", "%TEMP%" and "%DOCUMENTS%" with their folders, absolute and
/// without a separator at their end. They come from the environment and from the user's list of
/// folders; without those, from the usual places in the user's home. What cannot be known, because
/// there is no home, is left out.
std::map<std::wstring, std::wstring> UserFolders();

}  // namespace HOLLERIN
