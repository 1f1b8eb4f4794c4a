#pragma once

// The end of windows. Private to the platform layer.

#include <memory>
#include <vector>

#include "platform/qt/peer.h"

/// What is left of a window and its descendants: their peers and the widget. It dies when no code
/// that the window called can be running any more.
class WindowRemains : public QObject {
 public:
  explicit WindowRemains(const Peer& window);
  ~WindowRemains() override;

  void Add(std::unique_ptr<Peer> peer) { peers_.push_back(std::move(peer)); }
  void Hide();
  int ModalDepth() const { return modalDepth_; }

  /// Deletes all that are left, at the end of the application object.
  static void DeleteAll();

 private:
  QPointer<QWidget> widget_;
  int modalDepth_;
  std::vector<std::unique_ptr<Peer>> peers_;
};

/// Ends the window as DestroyPeer does, and leaves it to the caller when its remains are deleted.
/// Null when the window is gone or on its way.
std::unique_ptr<WindowRemains> TakeApart(HWND window);

/// Ends all windows and deletes them.
void DestroyAllWindows();
