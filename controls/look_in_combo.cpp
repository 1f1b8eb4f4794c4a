#include "controls/look_in_combo.h"

#include "controls/auto_complete.h"
#include "controls/browse_for_folder.h"
#include "controls/folder_list_text.h"
#include "foundation/catch_chain.h"
#include "foundation/exception.h"
#include "foundation/language.h"
#include "resources/text_ids.h"

namespace {

constexpr const wchar_t* kSource = L"look_in_combo.cpp";
constexpr std::wstring_view kLongPrefix = L"\\\\?\\";
constexpr std::wstring_view kLongNetworkPrefix = L"\\\\?\\UNC\\";

/// The server of a path with the long-path prefix of network paths; empty for any other.
std::wstring_view LongPathServer(std::wstring_view path) {
  if (!path.starts_with(kLongNetworkPrefix)) return {};
  path.remove_prefix(kLongNetworkPrefix.size());
  const std::size_t end = path.find(L'\\');
  return end != std::wstring_view::npos ? path.substr(0, end) : std::wstring_view();
}

}  // namespace

BEGIN_MESSAGE_MAP(CLookInCombo, CCustomComboBox)
ON_MESSAGE(kTextChangeEnded, &CLookInCombo::OnTextChangeEnded)
ON_MESSAGE(kListClosed, &CLookInCombo::OnListClosed)
END_MESSAGE_MAP()

CLookInCombo::CLookInCombo() = default;

CLookInCombo::~CLookInCombo() { edit_.UnsubclassWindow(); }

void CLookInCombo::PreSubclassWindow() {
  CCustomComboBox::PreSubclassWindow();
  edit_.SubclassDlgItem(kComboEditId, this);
}

void CLookInCombo::SetText(const CString& text) {
  edit_.SetText(text);
  BringUpToDate();
}

void CLookInCombo::SetOptions(bool keepText, bool labelled) {
  keepText_ = keepText;
  labelled_ = labelled;
}

void CLookInCombo::SetProviders(const Provider& list, const Provider& edit) {
  listHistory_ = list;
  editHistory_ = edit;
}

void CLookInCombo::Fill(bool forced) {
  if (listHistory_ == nullptr) return;
  if (!forced && !filledForced_ && GetCount() > 0) return;
  filledForced_ = forced;
  std::vector<CString> entries;
  const auto shown = [this, &entries](const CString& entry) {
    entries.push_back(entry);
    return ShownEntry(entry);
  };
  ThrowHr(listHistory_->Fill(this, forced, keepText_, labelled_, shown),
          L"Loading the history of folders");
  entries_ = std::move(entries);
}

CString CLookInCombo::ShownEntry(const CString& entry) {
  CString shown = GetEntryLabel(entry);
  if (!shown.IsEmpty()) shown += L": ";
  return shown + entry.Mid(GetEntryOffset(entry));
}

CString CLookInCombo::GetEntryLabel(const CString& entry) {
  const std::size_t folders = SplitFolders(entry.Str()).size();
  if (folders < 2) return std::wstring(LongPathServer(entry.Str()));
  CString label;
  label.Format(
      LanguagePlaceholder(TextId::kSeveralFolders.dialog, TextId::kSeveralFolders.number).Str(),
      static_cast<int>(folders));
  return label;
}

int CLookInCombo::GetEntryOffset(const CString& entry) {
  if (SplitFolders(entry.Str()).size() > 1) return 0;
  const std::wstring_view server = LongPathServer(entry.Str());
  if (!server.empty()) return static_cast<int>(kLongNetworkPrefix.size() + server.size() + 1);
  const bool network = entry.Str().starts_with(kLongNetworkPrefix);
  const bool local = !network && entry.Str().starts_with(kLongPrefix);
  return local ? static_cast<int>(kLongPrefix.size()) : 0;
}

CString CLookInCombo::GetCurrentText() {
  BringUpToDate();
  return edit_.GetText();
}

void CLookInCombo::BringUpToDate() { several_ = SplitFolders(edit_.GetText().Str()).size() > 1; }

void CLookInCombo::EnableAutoComplete() { ::EnableAutoComplete(edit_.m_hWnd, &dropDown_); }

void CLookInCombo::Browse() {
  RunGuarded(
      [this] {
        CString text = GetCurrentText();
        if (!several_ || editFolders_ == nullptr) return PickFolder();
        if (editFolders_(GetParent(), editHistory_, text)) SetText(text);
      },
      MakeMsgBoxDisplay, CString(), kSource);
}

void CLookInCombo::PickFolder() {
  const std::wstring text = edit_.GetText().Str();
  int start = 0;
  int caret = 0;
  edit_.GetSel(start, caret);
  const FolderPlace place = FolderAt(text, static_cast<std::size_t>(caret));
  std::wstring folder = text.substr(place.start, place.end - place.start);
  if (BrowseForFolder(GetParent(), folder, &folder, false)) {
    SetText(ReplaceFolder(text, place, folder));
  }
}

BOOL CLookInCombo::OnReflectedNotification(UINT code, int previous) {
  const BOOL kept = CCustomComboBox::OnReflectedNotification(code, previous);
  if (kept) return kept;
  if (code == CBN_SELCHANGE) ApplyChosenRow();
  if (code == CBN_EDITCHANGE) edit_.NoteEdited();
  if (code == CBN_CLOSEUP) PostMessage(kListClosed);
  return FALSE;
}

/// The row may read otherwise than the entry that it stands for.
void CLookInCombo::ApplyChosenRow() {
  const int row = GetCurSel();
  if (row < 0) return;
  const DWORD_PTR data = GetItemData(row);
  const auto change = edit_.MonitorChange();
  edit_.SetText(data < entries_.size() ? entries_[data] : edit_.GetText());
  change->byUser = true;
  PostMessage(kEntryChosen, data);
  BringUpToDate();
  if (!edit_.GetText().IsEmpty()) edit_.SetSel(0, -1);
}

LRESULT CLookInCombo::OnTextChangeEnded(WPARAM wParam, LPARAM) {
  if (wParam != 0) BringUpToDate();
  return 0;
}

LRESULT CLookInCombo::OnListClosed(WPARAM, LPARAM) {
  BringUpToDate();
  return 0;
}

BOOL CLookInCombo::PreTranslateMessage(MSG* message) {
  if (message->message == WM_KEYDOWN) {
    const auto key = static_cast<UINT>(message->wParam);
    if (IsCompletionShown() ? OnCompletionKey(key) : OnListKey(key)) return TRUE;
  }
  return CCustomComboBox::PreTranslateMessage(message);
}

bool CLookInCombo::IsCompletionShown() const {
  DWORD flags = 0;
  return dropDown_ != nullptr && SUCCEEDED(dropDown_->GetDropDownStatus(&flags)) &&
         (flags & ACDD_VISIBLE) != 0;
}

bool CLookInCombo::OnCompletionKey(UINT key) {
  if (key != VK_RETURN && key != VK_ESCAPE && key != VK_TAB) return false;
  const HWND self = m_hWnd;
  edit_.SendMessage(WM_KEYDOWN, key);
  if (key != VK_RETURN || !IsWindow(self)) return true;
  const int length = edit_.GetText().GetLength();
  edit_.SetSel(length, length);
  return true;
}

bool CLookInCombo::OnListKey(UINT key) {
  if (!GetDroppedState() || (key != VK_RETURN && key != VK_ESCAPE)) return false;
  const HWND self = m_hWnd;
  const int row = GetCurSel();
  ShowDropDown(FALSE);
  // The highlighted row counts as chosen only now.
  if (key == VK_RETURN && row >= 0 && IsWindow(self)) ChooseRow(row);
  return true;
}
