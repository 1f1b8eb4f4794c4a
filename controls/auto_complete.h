#pragma once

// Completion of folder names in an edit.

#include <memory>

#include "platform/autocomplete.h"

/// Switches completion on for the edit: suggestions in a list that the arrow keys open, the first
/// one appended while typing. `dropDown`, unless null, gets the interface that tells whether the
/// list is shown. Raises CCP_Exception, whose task names the step that failed.
void EnableAutoComplete(HWND edit, std::shared_ptr<IAutoCompleteDropDown>* dropDown);
