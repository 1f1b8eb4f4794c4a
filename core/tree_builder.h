#pragma once

// Fills the page tree from the managers.

#include "ifc/config_entry.h"
#include "ifc/observer.h"
#include "platform/controls.h"

/// What a publisher says when the children of its item have changed.
constexpr std::uint32_t kChildrenChanged = 0x808C;

/// Names the tree item that a publishing entry belongs to.
class CTreeViewParms : public INTERNAL_IFC::IObserverParms {
 public:
  explicit CTreeViewParms(HTREEITEM item) : item_(item) {}
  HTREEITEM Item() const { return item_; }

 private:
  HTREEITEM item_;
};

/// The entry that an item stands for; null when it has none.
INTERNAL_IFC::IConfigEntry* EntryOf(const CTreeCtrl& tree, HTREEITEM item);

/// Adds an expanded item for every child of `parent`, all levels, behind the children that `under`
/// has already. Entries that publish changes get `observer` as their observer. `found` becomes the
/// item of the last entry with that page id and stays what it was without one; when a group cannot
/// list its children, it is the last one met before. The entries must live as long as the items.
void BuildTree(CTreeCtrl& tree, INTERNAL_IFC::IObserver& observer,
               INTERNAL_IFC::IConfigParent& parent, HTREEITEM under, std::int32_t pageId,
               HTREEITEM& found);
