#include "platform/qt/message_delivery.h"

MessageDelivery::MessageDelivery(CWnd& window, const MessageArguments& arguments)
    : window_(&window), outer_(window.delivery_), arguments_(arguments) {
  window.delivery_ = this;
}

MessageDelivery::~MessageDelivery() {
  if (window_ != nullptr) window_->delivery_ = outer_;
}

void MessageDelivery::ObjectDies() {
  for (MessageDelivery* delivery = this; delivery != nullptr; delivery = delivery->outer_)
    delivery->window_ = nullptr;
}

LRESULT MessageDelivery::Deliver(HWND window, const MessageArguments& arguments) {
  Peer* peer = FindPeer(window);
  if (peer == nullptr) return 0;
  const ModuleOfWindow module(*peer);
  CWnd* object = peer->attached;
  if (object == nullptr)
    return peer->DefaultProcedure(arguments.message, arguments.wParam, arguments.lParam);
  const MessageDelivery delivery(*object, arguments);
  return object->WindowProc(arguments.message, arguments.wParam, arguments.lParam);
}

LRESULT MessageDelivery::DeliverToWindow(HWND window, const MessageArguments& arguments) {
  Peer* peer = FindPeer(window);
  if (peer == nullptr) return 0;
  return peer->DefaultProcedure(arguments.message, arguments.wParam, arguments.lParam);
}

void WindowAttachment::Attach(Peer& peer, CWnd& object) {
  Detach(peer);
  peer.attached = &object;
  object.m_hWnd = peer.handle;
}

void WindowAttachment::Detach(Peer& peer) {
  if (peer.attached == nullptr) return;
  peer.attached->m_hWnd = nullptr;
  peer.attached = nullptr;
}

void WindowAttachment::Release(Peer& peer) {
  Detach(peer);
  if (peer.temporary != nullptr) peer.temporary->m_hWnd = nullptr;
}

CWnd* WindowAttachment::Object(Peer& peer) {
  if (peer.attached != nullptr) return peer.attached;
  if (peer.temporary == nullptr) {
    peer.temporary = std::make_unique<CWnd>();
    peer.temporary->m_hWnd = peer.handle;
  }
  return peer.temporary.get();
}
