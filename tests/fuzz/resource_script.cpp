#include "platform/resource_script.h"

#include <cstdint>
#include <set>

/// Reads every resource whose number occurs in the bytes; nothing may be read outside of them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  ResourceError error;
  const auto script = ResourceScript::Parse(std::as_bytes(std::span(data, size)), error);
  if (script == nullptr) return 0;
  std::set<UINT> ids;
  for (std::size_t i = 0; i + 1 < size; i += 2) {
    ids.insert(data[i] | static_cast<UINT>(data[i + 1]) << 8);
  }
  for (const UINT id : ids) {
    static_cast<void>(script->Dialog(id, error));
    static_cast<void>(script->Menu(id, error));
    static_cast<void>(script->Data(L"PNG", id));
    // A number of the string table's block stands for its sixteen strings.
    for (UINT k = 0; id != 0 && k < 16; ++k) {
      static_cast<void>(script->String((id - 1) * 16 + k, error));
    }
  }
  return 0;
}
