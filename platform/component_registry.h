#pragma once

// The registrations of components: files "<ProgID>.component" in the machine's component folders.

#include <optional>
#include <string>
#include <string_view>

#include "platform/component.h"
#include "platform/key_file.h"

struct ComponentRegistration {
  CLSID classId;
  std::string library;  ///< Name of a file in the folder of the registration.
};

/// Whether the text can be a programmatic identifier (see CLSIDFromProgID).
bool IsProgId(std::wstring_view text);

/// The registration in a key file; nothing when its class or its library is missing or malformed. A
/// library is the bare name of a file: no separator, no "." at its start.
std::optional<ComponentRegistration> ParseRegistration(const KeyFile& file);

/// The class of the registration with that identifier.
std::optional<CLSID> FindComponent(std::wstring_view progId);

/// The real path of the registered class' shared object, which lies in the registration's own
/// folder. Empty when the file is missing, is no regular file or leads out of that folder; nothing
/// when the class is not registered.
std::optional<std::string> FindComponentLibrary(const CLSID& classId);
