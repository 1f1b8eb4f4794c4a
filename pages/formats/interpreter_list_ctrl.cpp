#include "pages/formats/interpreter_list_ctrl.h"

#include <unordered_set>

#include "foundation/exception.h"
#include "hollerin/hollerin.h"

namespace {

constexpr HRESULT kNoList = static_cast<HRESULT>(0x80040602U);
constexpr int kColumnWidth = 80;

/// The steps that can fail, with the line numbers by which reports tell them apart.
struct Step {
  const wchar_t* task;
  std::int32_t line;
};
constexpr Step kLoading = {L"Loading configuration list", 45};
constexpr Step kGetting = {L"Getting config for entry into list", 112};
constexpr Step kFinding = {L"Finding config entry to update", 262};
constexpr Step kSaving = {L"Saving configuration information to file", 281};

void ThrowIn(const Step& step, HRESULT status) { ThrowHr(status, step.task, step.line); }

}  // namespace

const CInterpreterListCtrl::ListHandle& CInterpreterListCtrl::GetList(bool reload) {
  if (reload) cached_.reset();
  if (cached_ == nullptr) HOLLERIN::LoadCurrentConfigInterpreterList(store_, &cached_);
  if (cached_ == nullptr) ThrowIn(kLoading, kNoList);
  return cached_;
}

void CInterpreterListCtrl::SetUpView() {
  const DWORD boxes = readOnly_ ? 0 : LVS_EX_CHECKBOXES;
  SetExtendedStyle(LVS_EX_DOUBLEBUFFER | LVS_EX_FULLROWSELECT | boxes);
  if (GetColumnWidth(0) != 0) return;
  ModifyStyle(0, LVS_LIST);
  InsertColumn(0, L"Name", LVCFMT_LEFT, kColumnWidth);
}

void CInterpreterListCtrl::Populate(bool reload) {
  SetUpView();
  DeleteAllItems();
  shown_ = GetList(reload);
  const std::int32_t count = shown_->GetCount();
  for (std::int32_t i = 0; i < count; ++i) {
    EntryHandle entry;
    ThrowIn(kGetting, shown_->GetAt(i, entry));
    if (Shows(entry)) AddRow(i, *entry);
  }
}

void CInterpreterListCtrl::AddRow(int place, INTERNAL_IFC::IConfigInterpreter& entry) {
  // Behind entries that are not shown the place lies past the end, which appends.
  const int row = InsertItem(place, entry.GetName());
  SetItemData(row, reinterpret_cast<DWORD_PTR>(&entry));
  if (!readOnly_) SetCheck(row, entry.IsEnabled());
}

void CInterpreterListCtrl::ChangeReadOnly(bool readOnly) {
  readOnly_ = readOnly;
  DeleteColumn(0);
  Populate(false);
}

INTERNAL_IFC::IConfigInterpreter* CInterpreterListCtrl::EntryAt(int row) const {
  return reinterpret_cast<INTERNAL_IFC::IConfigInterpreter*>(GetItemData(row));
}

std::vector<std::wstring> CInterpreterListCtrl::GetCheckedKeys() const {
  std::vector<std::wstring> keys;
  for (int row = 0; !readOnly_ && row < GetItemCount(); ++row) {
    const auto entry = EntryAt(row);
    if (entry != nullptr && GetCheck(row)) keys.push_back(entry->GetKey());
  }
  return keys;
}

void CInterpreterListCtrl::SetCheckedKeys(const std::vector<std::wstring>& keys) {
  const std::unordered_set<std::wstring> wanted(keys.begin(), keys.end());
  for (int row = 0; !readOnly_ && row < GetItemCount(); ++row) {
    const auto entry = EntryAt(row);
    const bool check = entry != nullptr && wanted.count(entry->GetKey()) > 0;
    SetCheck(row, check);
    if (entry != nullptr) entry->SetEnabled(check);
  }
}

void CInterpreterListCtrl::CheckAll(bool check) {
  for (int row = 0; row < GetItemCount(); ++row) SetCheck(row, check);
}

void CInterpreterListCtrl::SaveEnabledFlags() {
  if (readOnly_) return;
  const ListHandle fresh = GetList(true);
  // The rows keep the entries of the shown list until all are found in the fresh one.
  std::vector<EntryHandle> found;
  for (int row = 0; row < GetItemCount(); ++row) {
    found.push_back(FindEntryOf(row, *fresh));
    const EntryHandle& entry = found.back();
    if (entry != nullptr && Shows(entry)) entry->SetEnabled(GetCheck(row) != FALSE);
  }
  for (int row = 0; row < GetItemCount(); ++row) {
    SetItemData(row, reinterpret_cast<DWORD_PTR>(found[static_cast<std::size_t>(row)].get()));
  }
  shown_ = fresh;
  ThrowIn(kSaving, HOLLERIN::SaveConfigInterpreterList(store_, fresh, true));
  RemoveRowsWithoutEntry();
}

CInterpreterListCtrl::EntryHandle CInterpreterListCtrl::FindEntryOf(
    int row, INTERNAL_IFC::IConfigInterpreterList& list) const {
  EntryHandle entry;
  const auto shown = EntryAt(row);
  if (shown != nullptr) ThrowIn(kFinding, list.FindByKey(shown->GetKey(), entry));
  return entry;
}

void CInterpreterListCtrl::RemoveRowsWithoutEntry() {
  for (int row = GetItemCount() - 1; row >= 0; --row) {
    if (EntryAt(row) == nullptr) DeleteItem(row);
  }
}

bool CInterpreterListCtrl::RedrawsScrollBars(UINT message) const {
  if (message == WM_PAINT || message == WM_MOUSEWHEEL) return true;
  const bool key = message >= WM_KEYFIRST && message <= WM_KEYLAST;
  return key && (GetExtendedStyle() & LVS_EX_DOUBLEBUFFER) != 0;
}

void CInterpreterListCtrl::ScrollTo(int bar, int position) {
  int delta = position - GetScrollPos(bar);
  const DWORD style = GetStyle();
  if (CRect first; (style & LVS_AUTOARRANGE) == 0 && GetItemRect(0, first)) {
    const DWORD view = style & LVS_TYPEMASK;
    if (view == LVS_REPORT && bar == SB_VERT) delta *= first.Height();
    if (view == LVS_LIST && bar == SB_HORZ) delta *= first.Width();
  }
  const bool across = bar == SB_HORZ;
  SendMessage(LVM_SCROLL, static_cast<WPARAM>(across ? delta : 0), across ? 0 : delta);
}
