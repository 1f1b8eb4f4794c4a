#pragma once

// A message on its way through an object, and how objects are tied to windows. Private to the
// platform layer.

#include "platform/module.h"
#include "platform/qt/peer.h"

/// One message being handled by an object. Deliveries of one object form a chain, so that an object
/// that dies in the middle of its own messages can tell them all.
class MessageDelivery {
 public:
  MessageDelivery(CWnd& window, const MessageArguments& arguments);
  ~MessageDelivery();
  MessageDelivery(const MessageDelivery&) = delete;
  MessageDelivery& operator=(const MessageDelivery&) = delete;

  const MessageArguments& Arguments() const { return arguments_; }
  /// Tells this delivery and those around it that the object dies.
  void ObjectDies();

  /// Hands a message to the window's object, or to the window itself where it has none.
  static LRESULT Deliver(HWND window, const MessageArguments& arguments);
  /// The window's own behaviour; 0 for a window that is gone.
  static LRESULT DeliverToWindow(HWND window, const MessageArguments& arguments);

 private:
  CWnd* window_;
  MessageDelivery* outer_;
  MessageArguments arguments_;
};

/// Ties objects to windows and unties them.
class WindowAttachment {
 public:
  static void Attach(Peer& peer, CWnd& object);
  static void Detach(Peer& peer);
  /// As Detach, also for the temporary object of a window that is being destroyed.
  static void Release(Peer& peer);
  /// The attached object or a temporary one.
  static CWnd* Object(Peer& peer);
};

/// Makes the window's module current for as long as the object lives.
class ModuleOfWindow {
 public:
  explicit ModuleOfWindow(const Peer& peer)
      : state_(peer.module != nullptr ? peer.module : AfxGetResourceHandle()), current_(state_) {}

 private:
  AFX_MODULE_STATE state_;
  AFX_MAINTAIN_STATE2 current_;
};
