// Any bytes may stand in a desktop entry. They give no editor, or one with a name and a program.

#include "quimbly/desktop_entry.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto file = KeyFile::Parse({reinterpret_cast<const char*>(data), size});
  if (!file) return 0;
  const std::string* name = file->Find("Desktop Entry", "Name");
  const auto forms = LocaleForms(name != nullptr ? *name : "de_AT");
  if (forms.size() > 4) std::abort();
  const auto entry = ReadEditorEntry(*file, forms);
  if (entry && (entry->name.empty() || entry->program.empty())) std::abort();
  if (entry && entry->program.find('\0') != entry->program.npos) std::abort();
  return 0;
}
