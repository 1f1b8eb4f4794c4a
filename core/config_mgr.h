#pragma once

// The managers of the page tree: a node for each group, and the root above them.

#include <vector>

#include "core/page_tree.h"
#include "ifc/config_entry.h"

using EntryHandle = std::shared_ptr<INTERNAL_IFC::IConfigEntry>;
using EntryList = std::vector<EntryHandle>;

/// Applies the entries in order until one fails. A failure is written to the application's log, not
/// shown; its status is returned.
HRESULT ApplyEntries(const EntryList& entries) noexcept;

/// The row of a group. Every group has one; raises CCP_Exception where the table forgot it.
const GroupRow& RowOf(PageGroup group);

/// Entries for the pages of a group, in the order of the table.
EntryList MakeEntries(PageGroup group);

/// A group: an entry of the tree that owns its children.
class CConfigMgrBase : public INTERNAL_IFC::IConfigParent, public INTERNAL_IFC::IConfigEntry {
 public:
  CConfigMgrBase(CString title, std::int32_t pageId, std::int32_t image)
      : title_(std::move(title)), pageId_(pageId), image_(image) {}

  std::int32_t GetChildren(EntryList& children) override;
  /// Makes the group's own page.
  virtual std::shared_ptr<CDialog> CreateGroupDialog(
      CWnd* parent, INTERNAL_IFC::IConfigDataProvider* provider) = 0;

  std::shared_ptr<CDialog> GetDialog(CWnd* parent,
                                     INTERNAL_IFC::IConfigDataProvider* provider) override;
  CString GetTitle() override { return title_; }
  std::int32_t GetPageId() override { return pageId_; }
  std::uint32_t GetExtraValue() override { return 0; }
  /// Applies the children; the group's own page has nothing to write.
  HRESULT Apply() override { return ApplyEntries(children_); }
  std::int32_t GetImageIndex() override { return image_; }

 protected:
  void AddChild(EntryHandle child) { children_.push_back(std::move(child)); }
  void SetChildren(EntryList children) { children_ = std::move(children); }
  bool HasChildren() const { return !children_.empty(); }

 private:
  std::shared_ptr<CDialog> page_;
  EntryList children_;
  CString title_;
  std::int32_t pageId_;
  std::int32_t image_;
};

/// A group whose page and children are rows of the page table.
class CConfigTableMgr : public CConfigMgrBase {
 public:
  explicit CConfigTableMgr(PageGroup group);
  std::shared_ptr<CDialog> CreateGroupDialog(CWnd* parent,
                                             INTERNAL_IFC::IConfigDataProvider* provider) override;

 private:
  explicit CConfigTableMgr(const GroupRow& row);
  const GroupRow& row_;
};

class CConfigGeneralMgr : public CConfigTableMgr {
 public:
  CConfigGeneralMgr() : CConfigTableMgr(PageGroup::kGeneral) {}
};

class CConfigExprMgr : public CConfigTableMgr {
 public:
  CConfigExprMgr() : CConfigTableMgr(PageGroup::kExpressions) {}
};

class CConfigEditorMgr : public CConfigTableMgr {
 public:
  CConfigEditorMgr() : CConfigTableMgr(PageGroup::kEditor) {}
};

class CConfigAdvMgr : public CConfigTableMgr {
 public:
  CConfigAdvMgr() : CConfigTableMgr(PageGroup::kAdvanced) {}
};

/// The root: holds the groups and is no entry itself.
class CConfigMgr : public INTERNAL_IFC::IConfigParent {
 public:
  /// `config` is the configuration being edited, for groups whose pages come from it.
  explicit CConfigMgr(const StoreHandle& config);

  std::int32_t GetChildren(EntryList& children) override;
  /// Applies the whole tree, depth first; stops at the first page that fails.
  HRESULT Apply() { return ApplyEntries(children_); }

 private:
  EntryList children_;
};
