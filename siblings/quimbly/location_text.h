#pragma once

// Folders as one text.
//
//   /home/a; /b                 two folders; blanks around one do not count
//   "/a;b"; "/say ""x"""        quotes hold any name, a quote inside being doubled
//   "/c"-; "/d"+                without and with the folders below it, whatever is usual
//
// A text of any form is read: empty entries are left out, a quote inside a quoted name that is not
// followed by an end is a character of the name, and from a quote that is never closed on all
// quotes are characters.

#include <string_view>
#include <vector>

#include "ifc/location_list.h"

/// `subfolders` says what is usual: whether a folder without a mark includes those below it.
std::vector<INTERNAL_IFC::Location> ParseLocations(std::wstring_view text, bool subfolders);

/// A text that ParseLocations reads back as these folders. Without `marks` the folders alone, which
/// are read back as the usual kind.
std::wstring FormatLocations(const std::vector<INTERNAL_IFC::Location>& locations, bool subfolders,
                             bool marks);
