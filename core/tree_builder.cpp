#include "core/tree_builder.h"

#include "core/tree_images.h"

using INTERNAL_IFC::IConfigEntry;
using INTERNAL_IFC::IConfigParent;

IConfigEntry* EntryOf(const CTreeCtrl& tree, HTREEITEM item) {
  if (item == nullptr) return nullptr;
  return reinterpret_cast<IConfigEntry*>(tree.GetItemData(item));
}

namespace {

HTREEITEM InsertEntry(CTreeCtrl& tree, IConfigEntry& entry, HTREEITEM under) {
  const std::int32_t own = entry.GetImageIndex();
  const int image = own == -1 ? kDefaultTreeImage : own;
  const HTREEITEM item = tree.InsertItem(entry.GetTitle(), image, image, under, TVI_LAST);
  tree.SetItemData(item, reinterpret_cast<DWORD_PTR>(&entry));
  return item;
}

}  // namespace

void BuildTree(CTreeCtrl& tree, INTERNAL_IFC::IObserver& observer, IConfigParent& parent,
               HTREEITEM under, std::int32_t pageId, HTREEITEM& found) {
  std::vector<std::shared_ptr<IConfigEntry>> children;
  parent.GetChildren(children);
  for (const std::shared_ptr<IConfigEntry>& child : children) {
    const HTREEITEM item = InsertEntry(tree, *child, under);
    if (child->GetPageId() == pageId) found = item;
    if (auto* publisher = dynamic_cast<INTERNAL_IFC::IPublisher*>(child.get())) {
      publisher->Subscribe(&observer, std::make_shared<CTreeViewParms>(item));
    }
    if (auto* group = dynamic_cast<IConfigParent*>(child.get())) {
      BuildTree(tree, observer, *group, item, pageId, found);
    }
    tree.Expand(item, TVE_EXPAND);
  }
}
