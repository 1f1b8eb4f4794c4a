#include "controls/combo_list_edit.h"

#include <utility>

#include "controls/folder_list_text.h"

CComboListEdit::CMonitorChange::~CMonitorChange() {
  ::PostMessage(notified_, kTextChangeEnded, changed && byUser ? 1 : 0, 0);
}

/// One change of the text, made while this lives. A change inside another one is a part of it.
class CComboListEdit::Change {
 public:
  Change(CComboListEdit& edit, ChangeKind kind, std::wstring textBefore)
      : window_(edit.m_hWnd), kind_(kind), outer_(edit.monitor_) {
    edit.monitor_ = edit.MonitorChange();
    if (outer_ == nullptr) edit.state_ = {kind, std::move(textBefore)};
  }
  ~Change() {
    // The change may have been the end of the edit.
    auto* edit = dynamic_cast<CComboListEdit*>(CWnd::FromHandle(window_));
    if (edit == nullptr) return;
    const std::shared_ptr<CMonitorChange> monitor = std::exchange(edit->monitor_, outer_);
    edit->known_ = edit->GetText().Str();
    if (edit->known_ == edit->state_.textBefore) return;
    monitor->changed = true;
    if (kind_ != kSetting) monitor->byUser = true;
  }
  Change(const Change&) = delete;
  Change& operator=(const Change&) = delete;

 private:
  HWND window_;
  ChangeKind kind_;
  std::shared_ptr<CMonitorChange> outer_;
};

BEGIN_MESSAGE_MAP(CComboListEdit, CBCGPEdit)
ON_WM_CHAR()
ON_WM_KEYDOWN()
ON_MESSAGE(EM_REPLACESEL, &CComboListEdit::OnReplaceSelection)
ON_MESSAGE(ACM_GETPART, &CComboListEdit::OnGetPart)
END_MESSAGE_MAP()

void CComboListEdit::SetText(const CString& text) {
  const Change change(*this, kSetting, known_);
  SetWindowText(text);
}

CString CComboListEdit::GetText() const {
  CString text;
  GetWindowText(text);
  return text;
}

std::shared_ptr<CComboListEdit::CMonitorChange> CComboListEdit::MonitorChange() {
  std::shared_ptr<CMonitorChange> monitor = watched_.lock();
  if (monitor == nullptr) {
    const CWnd* combo = GetParent();
    monitor = std::make_shared<CMonitorChange>(combo != nullptr ? combo->m_hWnd : nullptr);
    watched_ = monitor;
  }
  return monitor;
}

void CComboListEdit::NoteEdited() {
  if (monitor_ == nullptr) const Change change(*this, kReplacing, known_);
}

void CComboListEdit::OnChar(UINT character, UINT repeats, UINT flags) {
  const Change change(*this, character == VK_BACK ? kRemoving : kTyping, GetText().Str());
  CBCGPEdit::OnChar(character, repeats, flags);
}

void CComboListEdit::OnKeyDown(UINT key, UINT repeats, UINT flags) {
  if (key != VK_DELETE) return CBCGPEdit::OnKeyDown(key, repeats, flags);
  const Change change(*this, kRemoving, GetText().Str());
  CBCGPEdit::OnKeyDown(key, repeats, flags);
}

LRESULT CComboListEdit::OnReplaceSelection(WPARAM, LPARAM) {
  const Change change(*this, kCompleting, GetText().Str());
  return Default();
}

/// Of several folders, the one that the caret is at is completed. A name with a separator in it
/// only fits inside quotes.
LRESULT CComboListEdit::OnGetPart(WPARAM, LPARAM lParam) {
  auto& part = *reinterpret_cast<AUTOCOMPLETEPART*>(lParam);
  const FolderPlace place = FolderAt(part.text, static_cast<std::size_t>(part.caret));
  part.start = static_cast<int>(place.start);
  part.end = static_cast<int>(place.end);
  part.excluded = place.quoted ? L'"' : kFolderSeparator;
  return TRUE;
}
