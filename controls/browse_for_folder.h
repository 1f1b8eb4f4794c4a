#pragma once

// Picking folders.

#include <string>

class CWnd;

/// Shows the folder picker above `owner` (may be null), starting in the folder `start` of either
/// style; an empty or missing one leaves the place to the picker. With `several` the user may pick
/// more than one folder. Returns whether the user picked; `result` is filled then: the path, or all
/// paths joined with ";", where a path that holds a ";" is in double quotes. Picked paths are paths
/// of this system. Raises CCP_Exception ("Picking folders") when the picker fails, such as for more
/// than 260000 characters of paths.
bool BrowseForFolder(CWnd* owner, const std::wstring& start, std::wstring* result, bool several);
