#include "platform/qt/combo_edit_peer.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <utility>

#include "platform/qt/combo_peer.h"
#include "platform/qt/path_completion.h"

namespace {

/// The character that the key types; 0 for a key that types none.
wchar_t CharacterOf(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Backspace) return VK_BACK;
  const std::wstring text = FromQt(event.text());
  return !text.empty() && text.front() >= L' ' && event.key() != Qt::Key_Delete ? text.front() : 0;
}

}  // namespace

ComboEditPeer::ComboEditPeer(QLineEdit& edit) : LineEditPeer(edit) { className = L"Edit"; }

ComboEditPeer::~ComboEditPeer() = default;

void ComboEditPeer::SetText(const std::wstring& newText) {
  if (Peer* combo = FindPeer(parent)) combo->SetText(newText);
}

LRESULT ComboEditPeer::DefaultProcedure(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_KEYDOWN:
      if (OnKeyDown(static_cast<UINT>(wParam))) return 0;
      [[fallthrough]];
    case WM_SYSKEYDOWN:
      defaultReached = true;
      if (!characterLater_) Act();
      return 0;
    case WM_CHAR:
      if (completion_ != nullptr) completion_->OnCharacter(wParam >= ' ');
      Act();
      return 0;
    case EM_REPLACESEL:
      Edit().insert(ToQt(reinterpret_cast<const wchar_t*>(lParam)));
      return 0;
    default:
      return EditPeer::DefaultProcedure(message, wParam, lParam);
  }
}

void ComboEditPeer::OnKey(QKeyEvent& event, const std::function<void()>& act) {
  const HWND self = handle;
  const wchar_t character = CharacterOf(event);
  const UINT key = VirtualKey(event.key());
  const bool alternate = (event.modifiers() & Qt::AltModifier) != 0;
  if (key == 0 && character == 0) return act();
  act_ = act;
  characterLater_ = character != 0;
  defaultReached = true;
  if (key != 0) {
    defaultReached = false;
    SendFromToolkit(self, alternate ? WM_SYSKEYDOWN : WM_KEYDOWN, key, 0);
    if (FindPeer(self) != this) return event.accept();
  }
  characterLater_ = false;
  if (defaultReached && character != 0) {
    SendFromToolkit(self, WM_CHAR, static_cast<WPARAM>(character), 0);
    if (FindPeer(self) != this) return event.accept();
  }
  // Whoever takes a message takes the key.
  if (std::exchange(act_, nullptr)) event.accept();
}

bool ComboEditPeer::OnKeyDown(UINT key) {
  return completion_ != nullptr && completion_->OnKey(key);
}

void ComboEditPeer::Act() {
  if (const auto act = std::exchange(act_, nullptr)) act();
}

void ComboEditPeer::StartCompletion() {
  if (completion_ == nullptr) completion_ = std::make_unique<PathCompletion>(handle, Edit());
}

void ComboEditPeer::CloseCompletion() const {
  if (completion_ != nullptr) completion_->Close();
}
