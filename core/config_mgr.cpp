#include "core/config_mgr.h"

#include <algorithm>

#include "foundation/catch_chain.h"
#include "foundation/exception.h"
#include "foundation/language.h"

namespace {

std::int32_t CopyChildren(const EntryList& from, EntryList& to) {
  to = from;
  return static_cast<std::int32_t>(to.size());
}

}  // namespace

const GroupRow& RowOf(PageGroup group) {
  const std::span<const GroupRow> rows = PageTreeGroups();
  const auto row = std::ranges::find(rows, group, &GroupRow::group);
  if (row == rows.end()) ThrowHr(E_INVALIDARG, L"Finding group of pages");
  return *row;
}

EntryList MakeEntries(PageGroup group) {
  EntryList entries;
  for (const PageRow& page : PageTreePages()) {
    if (page.group == group) entries.push_back(page.makeEntry(page));
  }
  return entries;
}

HRESULT ApplyEntries(const EntryList& entries) noexcept {
  return RunGuarded(
      [&] {
        for (const EntryHandle& entry : entries) ThrowHr(entry->Apply(), L"Applying configuration");
      },
      MakeLogDisplay, L"", L"Brisquel/ConfigMgr");
}

std::int32_t CConfigMgrBase::GetChildren(EntryList& children) {
  return CopyChildren(children_, children);
}

std::shared_ptr<CDialog> CConfigMgrBase::GetDialog(CWnd* parent,
                                                   INTERNAL_IFC::IConfigDataProvider* provider) {
  if (page_ == nullptr) page_ = CreateGroupDialog(parent, provider);
  return page_;
}

CConfigTableMgr::CConfigTableMgr(PageGroup group) : CConfigTableMgr(RowOf(group)) {}

CConfigTableMgr::CConfigTableMgr(const GroupRow& row)
    : CConfigMgrBase(LanguageString(row.title), row.pageId, row.image), row_(row) {
  SetChildren(MakeEntries(row.group));
}

std::shared_ptr<CDialog> CConfigTableMgr::CreateGroupDialog(
    CWnd* parent, INTERNAL_IFC::IConfigDataProvider* provider) {
  std::shared_ptr<CConfigDialog> page = row_.makePage();
  page->CreatePage(parent, provider, row_.creationFailure);
  return page;
}

CConfigMgr::CConfigMgr(const StoreHandle& config) {
  for (const GroupRow& row : PageTreeGroups()) children_.push_back(row.makeManager(config));
}

std::int32_t CConfigMgr::GetChildren(EntryList& children) {
  return CopyChildren(children_, children);
}
