#pragma once

// A compiled resource script (.res), read with every length and offset checked.

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/types.h"

/// A control of a dialog template. Position and size are in dialog units.
struct DialogItemTemplate {
  DWORD style = 0;
  DWORD exStyle = 0;
  int x = 0, y = 0, cx = 0, cy = 0;
  int id = 0;              ///< -1 for a control without a number.
  std::wstring className;  ///< As documented ("Button", "SysTreeView32"), whatever its case was.
  std::wstring text;
};

struct DialogTemplate {
  DWORD style = 0;
  DWORD exStyle = 0;
  int x = 0, y = 0, cx = 0, cy = 0;
  std::wstring title;
  int pointSize = 0;
  std::vector<DialogItemTemplate> items;
};

struct MenuItemTemplate {
  UINT command = 0;
  std::wstring text;
  bool grayed = false;
  std::vector<MenuItemTemplate> children;
};

/// Where and why a script was refused.
struct ResourceError {
  std::size_t offset = 0;  ///< Bytes from the start of the script.
  std::string reason;
};

class ResourceScript {
 public:
  ResourceScript();
  ~ResourceScript();

  /// Reads the directory of resources. Null, with `error` filled, when the bytes end early or hold
  /// an impossible length. The bytes are not copied and must outlive the result.
  static std::unique_ptr<ResourceScript> Parse(std::span<const std::byte> bytes,
                                               ResourceError& error);

  /// Each reads one resource. Empty when there is none with that number; when the resource itself
  /// is damaged `error` is filled as well.
  std::optional<DialogTemplate> Dialog(UINT id, ResourceError& error) const;
  std::optional<std::vector<MenuItemTemplate>> Menu(UINT id, ResourceError& error) const;
  std::optional<std::wstring> String(UINT id, ResourceError& error) const;

  /// The bytes of a resource of a named type; names are compared without regard to case.
  std::span<const std::byte> Data(const std::wstring& type, UINT id) const;

 private:
  struct Implementation;
  std::unique_ptr<Implementation> implementation_;
};
