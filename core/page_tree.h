#pragma once

// The table of the page tree: which groups there are, which pages they hold, in which order. A page
// or group is added here and nowhere else.

#include <memory>
#include <span>

#include "core/config_dialog.h"
#include "ifc/config_entry.h"

enum class PageGroup { kGeneral, kExpressions, kEditor, kAdvanced, kExtensions };

/// A leaf of the tree.
struct PageRow {
  PageGroup group = PageGroup::kGeneral;
  UINT title = 0;  ///< Language string.
  std::int32_t pageId = 0;
  UINT templateId = 0;
  std::shared_ptr<INTERNAL_IFC::IConfigEntry> (*makeEntry)(const PageRow& row) = nullptr;
};

/// A group with the page that it shows itself.
struct GroupRow {
  PageGroup group = PageGroup::kGeneral;
  UINT title = 0;
  std::int32_t pageId = 0;
  std::int32_t image = 0;  ///< Index in the tree's image strip.
  UINT templateId = 0;
  const wchar_t* creationFailure = L"";  ///< Told when the group's page cannot be made.
  /// Null for a group whose manager makes the page itself.
  std::shared_ptr<CConfigDialog> (*makePage)() = nullptr;
  std::shared_ptr<INTERNAL_IFC::IConfigEntry> (*makeManager)(const StoreHandle& config) = nullptr;
};

/// Both in tree order.
std::span<const GroupRow> PageTreeGroups();
std::span<const PageRow> PageTreePages();
