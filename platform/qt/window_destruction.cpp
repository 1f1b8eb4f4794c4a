#include "platform/qt/window_destruction.h"

#include <unordered_set>

#include "platform/qt/message_delivery.h"
#include "platform/qt/modal_run.h"
#include "platform/qt/window_table.h"

namespace {

std::unordered_set<WindowRemains*>& AllRemains() {
  static auto* all = new std::unordered_set<WindowRemains*>;
  return *all;
}

/// Every step may run handlers, and each of them may end the window or its children itself.
void Dissolve(HWND window, WindowRemains& remains) {
  Peer* peer = FindPeer(window);
  if (peer == nullptr || peer->destroying) return;
  peer->destroying = true;
  const bool ownsWindows = peer->kind == ControlKind::Dialog;
  SendFromToolkit(window, WM_DESTROY, 0, 0);
  if (ownsWindows)
    for (const HWND owned : WindowTable::Get().OwnedBy(window)) DestroyPeer(owned);
  for (const HWND child : GetChildWindows(window)) Dissolve(child, remains);
  if (FindPeer(window) == nullptr) return;
  ModalRun::WindowGone(window);
  WindowAttachment::Release(*peer);
  if (Peer* parent = FindPeer(peer->parent))
    std::erase_if(parent->children, [window](const auto& child) { return child.window == window; });
  remains.Add(WindowTable::Get().Remove(window));
}

}  // namespace

WindowRemains::WindowRemains(const Peer& window)
    : widget_(window.widget), modalDepth_(window.modalDepth) {
  AllRemains().insert(this);
}

WindowRemains::~WindowRemains() {
  AllRemains().erase(this);
  // Before the peers, which the widget may still ask while it dies.
  delete widget_;
}

void WindowRemains::Hide() {
  if (widget_ != nullptr) widget_->hide();
}

void WindowRemains::DeleteAll() {
  while (!AllRemains().empty()) delete *AllRemains().begin();
}

std::unique_ptr<WindowRemains> TakeApart(HWND window) {
  const Peer* peer = FindPeer(window);
  if (peer == nullptr || peer->destroying) return nullptr;
  auto remains = std::make_unique<WindowRemains>(*peer);
  Dissolve(window, *remains);
  remains->Hide();
  return remains;
}

void DestroyPeer(HWND window) {
  std::unique_ptr<WindowRemains> remains = TakeApart(window);
  if (remains == nullptr) return;
  if (ModalRun* later = ModalRun::At(remains->ModalDepth())) {
    later->Keep(std::move(remains));
  } else {
    remains.release()->deleteLater();
  }
}

void DestroyAllWindows() {
  for (const HWND window : WindowTable::Get().TopLevel()) DestroyPeer(window);
  WindowRemains::DeleteAll();
}
