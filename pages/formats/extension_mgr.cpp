#include "pages/formats/extension_mgr.h"

#include <algorithm>

#include "core/tree_builder.h"
#include "foundation/catch_chain.h"
#include "foundation/exception.h"
#include "foundation/language.h"
#include "pages/formats/extension_entry.h"
#include "pages/formats/extension_group_page.h"

namespace {

using INTERNAL_IFC::IConfigInterpreter;

constexpr const wchar_t* kSource = L"Brisquel/ConfigExtensionMgr";
constexpr std::int32_t kEntryFailureLine = 89;

/// Kinds of interpreters whose extensions are not the user's to choose.
constexpr const wchar_t* kPagelessTypes[] = {L"ifilter", L"config"};
constexpr const wchar_t* kDefaultType = L"defaultinterpreter";

bool HasPage(const std::wstring& type) {
  return std::ranges::none_of(
      kPagelessTypes, [&](const wchar_t* word) { return type.find(word) != std::wstring::npos; });
}

std::shared_ptr<IConfigInterpreter> EntryAt(INTERNAL_IFC::IConfigInterpreterList& list,
                                            std::int32_t index) {
  std::shared_ptr<IConfigInterpreter> entry;
  ThrowHr(list.GetAt(index, entry), L"Getting config for entry into list", kEntryFailureLine);
  return entry;
}

}  // namespace

CConfigExtensionMgr::CConfigExtensionMgr(const StoreHandle& store)
    : CConfigExtensionMgr(RowOf(PageGroup::kExtensions), store) {}

CConfigExtensionMgr::CConfigExtensionMgr(const GroupRow& row, const StoreHandle& store)
    : CConfigMgrBase(LanguageString(row.title), row.pageId, row.image), row_(row), store_(store) {
  RunGuarded([this] { list_ = LoadList(); }, MakeLogDisplay, L"", kSource);
}

HOLLERIN::InterpreterListHandle CConfigExtensionMgr::LoadList() const {
  HOLLERIN::InterpreterListHandle list;
  ThrowHr(HOLLERIN::LoadCurrentConfigInterpreterList(store_, &list), L"Loading configuration list");
  return list;
}

std::int32_t CConfigExtensionMgr::GetChildren(EntryList& children) {
  if (!HasChildren()) MakeChildren();
  return CConfigMgrBase::GetChildren(children);
}

void CConfigExtensionMgr::MakeChildren() {
  std::vector<std::shared_ptr<CConfigEntryExtension>> defaults, others;
  const std::int32_t count = list_ != nullptr ? list_->GetCount() : 0;
  for (std::int32_t index = 0; index < count; ++index) {
    std::shared_ptr<IConfigInterpreter> interpreter = EntryAt(*list_, index);
    const std::wstring type = interpreter->GetType();
    if (!HasPage(type)) continue;
    auto& group = type.find(kDefaultType) != std::wstring::npos ? defaults : others;
    group.push_back(std::make_shared<CConfigEntryExtension>(std::move(interpreter)));
  }
  defaults.insert(defaults.end(), others.begin(), others.end());
  EntryList children = MakeEntries(row_.group);
  children.insert(children.end(), defaults.begin(), defaults.end());
  extensions_ = std::move(defaults);
  SetChildren(std::move(children));
}

std::shared_ptr<CDialog> CConfigExtensionMgr::CreateGroupDialog(
    CWnd* parent, INTERNAL_IFC::IConfigDataProvider* provider) {
  auto page = std::make_shared<CConfigEntryExtensionMainDlg>(*this, store_);
  page->CreatePage(parent, provider, row_.creationFailure);
  return page;
}

HRESULT CConfigExtensionMgr::Apply() {
  if (store_ == nullptr) return E_FAIL;
  if (list_ == nullptr) return CConfigMgrBase::Apply();
  HRESULT status = Renew();
  if (SUCCEEDED(status)) status = CConfigMgrBase::Apply();
  if (FAILED(status)) return status;
  return HOLLERIN::SaveConfigInterpreterList(store_, list_, true);
}

/// Lets the pages that were opened write into the list as it is stored now, so that what others
/// stored since, such as the document filters found meanwhile, is not undone.
HRESULT CConfigExtensionMgr::Renew() {
  HOLLERIN::InterpreterListHandle stored;
  HRESULT status = HOLLERIN::LoadCurrentConfigInterpreterList(store_, &stored);
  for (const auto& extension : extensions_) {
    if (FAILED(status)) return status;
    status = extension->MoveTo(*stored);
  }
  if (SUCCEEDED(status)) list_ = std::move(stored);
  return status;
}

HRESULT CConfigExtensionMgr::Subscribe(INTERNAL_IFC::IObserver* observer,
                                       std::shared_ptr<INTERNAL_IFC::IObserverParms> parms) {
  observer_ = observer;
  parms_ = std::move(parms);
  return S_OK;
}

void CConfigExtensionMgr::Reload() {
  list_ = LoadList();
  // The observer has items that name them until it has been told.
  EntryList dropped;
  CConfigMgrBase::GetChildren(dropped);
  SetChildren({});
  extensions_.clear();
  if (observer_ != nullptr) observer_->Notify(kChildrenChanged, parms_.get());
}
