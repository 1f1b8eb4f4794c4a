#pragma once

// A list of folders to search.

#include <cstdint>
#include <string>

#include "platform/types.h"

namespace INTERNAL_IFC {

struct Location {
  std::wstring folder;
  bool subfolders = true;  ///< Whether the folders below it are searched too.

  bool operator==(const Location&) const = default;
};

class ILocationList {
 public:
  virtual ~ILocationList() = default;  // 0
  /// Replaces the list by the folders of a text. Every text has a meaning: folders stand between
  /// ";", and one that is in double quotes may hold any character, a quote being doubled. Behind
  /// the closing quote "-" leaves the subfolders out and "+" takes them in.
  virtual void ParseText(const std::wstring& text) = 0;  // 1
  virtual std::int32_t GetCount() = 0;                   // 2
  /// False when there is no such folder; the index is 0-based.
  virtual bool GetAt(std::int32_t index, Location& location) = 0;  // 3
  /// Appends a folder; an empty one is left out.
  virtual void Add(const Location& location) = 0;  // 4
  virtual void Clear() = 0;                        // 5
  /// The text that ParseText reads back as this list; without `marks`, the folders alone.
  virtual std::wstring FormatText(bool marks) = 0;  // 6
};

}  // namespace INTERNAL_IFC
