#pragma once

// The run of one modal dialog. Private to the platform layer.

#include <QEventLoop>
#include <exception>
#include <memory>
#include <vector>

#include "platform/dialog.h"

/// Lives on the stack of DoModal. Runs nest; an inner one always ends before an outer one.
class ModalRun {
 public:
  explicit ModalRun(CDialog& dialog);
  ~ModalRun();
  ModalRun(const ModalRun&) = delete;
  ModalRun& operator=(const ModalRun&) = delete;

  /// Makes the window, runs it and destroys it. -1 when it cannot be made, or was destroyed without
  /// an end. Raises the exception that ended the run.
  INT_PTR Execute(UINT templateId, CWnd* parent);

  void End(int result);
  void EndWith(std::exception_ptr exception);
  /// The dialog object is destroyed inside its own run.
  void DialogDies();

  /// Keeps what is left of a window that was made before this run: code that was called by that
  /// window may be waiting for the run to end.
  void Keep(std::unique_ptr<QObject> remains);

  /// Number of runs now.
  static int Depth();
  /// The run at that depth, 0 being the outermost; null when there is none.
  static ModalRun* At(int depth);
  static ModalRun* Innermost() { return At(Depth() - 1); }
  /// Ends the run of a window that has been destroyed.
  static void WindowGone(HWND window);

 private:
  void Loop();
  void Finish();

  CDialog* dialog_;
  HWND window_ = nullptr;
  QEventLoop loop_;
  bool ended_ = false;
  int result_ = -1;
  std::exception_ptr exception_;
  std::vector<std::unique_ptr<QObject>> kept_;
};
