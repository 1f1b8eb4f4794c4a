#pragma once

// A window that shows how far a task is while the task runs on the user-interface thread.

#include <memory>

#include "platform/text.h"
#include "platform/types.h"

/// The task calls Poll often; at most forty times a second that handles the events which are
/// waiting, so that the windows are painted and Cancel is heard. The window appears at a poll once
/// the task has run for a twentieth of a second, so that nothing flashes for a shorter one, and
/// goes with the object. From then on it is modal: no other window takes input. Before, no event is
/// handled at all.
class CProgressWindow {
 public:
  /// `owner` may be null or stale, which is the active window.
  CProgressWindow(HWND owner, const CString& title, bool cancellable);
  ~CProgressWindow();
  CProgressWindow(const CProgressWindow&) = delete;
  CProgressWindow& operator=(const CProgressWindow&) = delete;

  /// What the task is doing; at first the title.
  void SetText(const CString& text);
  /// In thousandths, from 0 to 1000; shown with the next poll that handles events.
  void SetPosition(int thousandths);
  /// True from the moment on when the user cancelled.
  bool Poll();

 private:
  struct Implementation;
  std::unique_ptr<Implementation> implementation_;
};
