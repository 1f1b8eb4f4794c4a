#include "platform/qt/modal_run.h"

#include <QApplication>
#include <QDialog>
#include <cstdio>

#include "platform/exceptions.h"
#include "platform/qt/dialog_builder.h"
#include "platform/qt/window_destruction.h"
#include "platform/qt/window_placement.h"

namespace {

std::vector<ModalRun*>& Runs() {
  static std::vector<ModalRun*> runs;
  return runs;
}

/// Message boxes, pickers and menus above the dialog run loops of their own, which have to end
/// before the dialog's can.
void CloseWindowsAbove(const QWidget* dialog) {
  while (QWidget* popup = QApplication::activePopupWidget()) {
    popup->close();
    if (QApplication::activePopupWidget() == popup) break;
  }
  while (QWidget* modal = QApplication::activeModalWidget()) {
    auto* box = qobject_cast<QDialog*>(modal);
    if (modal == dialog || FindPeer(modal) != nullptr || box == nullptr) break;
    box->reject();
    if (QApplication::activeModalWidget() == modal) break;
  }
}

/// Nobody is left to take the exception.
void Report(std::exception_ptr exception) {
  try {
    std::rethrow_exception(std::move(exception));
  } catch (CException* error) {
    CString text;
    error->GetErrorMessage(&text);
    std::fprintf(stderr, "An error left a message handler: %s\n", ToUtf8(text.Str()).c_str());
    error->Delete();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "An error left a message handler: %s\n", error.what());
  } catch (...) {
    std::fprintf(stderr, "An error left a message handler.\n");
  }
}

}  // namespace

void EndModalRunWith(std::exception_ptr exception) {
  if (ModalRun* run = ModalRun::Innermost()) {
    run->EndWith(std::move(exception));
  } else {
    Report(std::move(exception));
  }
}

ModalRun::ModalRun(CDialog& dialog) : dialog_(&dialog) {
  Runs().push_back(this);
  dialog.run_ = this;
}

ModalRun::~ModalRun() { Finish(); }

int ModalRun::Depth() { return static_cast<int>(Runs().size()); }

ModalRun* ModalRun::At(int depth) {
  return depth >= 0 && depth < Depth() ? Runs()[static_cast<std::size_t>(depth)] : nullptr;
}

void ModalRun::WindowGone(HWND window) {
  for (ModalRun* run : Runs())
    if (run->window_ == window) run->End(run->result_);
}

INT_PTR ModalRun::Execute(UINT templateId, CWnd* parent) {
  window_ = MakeDialogWindow(*dialog_, templateId, OwnerOf(parent), DialogUse::Modal);
  Loop();
  Finish();
  if (exception_) std::rethrow_exception(exception_);
  return result_;
}

void ModalRun::Loop() {
  const Peer* peer = FindPeer(window_);
  if (peer == nullptr || ended_) return;
  QWidget& widget = *peer->widget;
  widget.setWindowModality(Qt::ApplicationModal);
  OpenOnScreen(*peer);
  // Showing the window sends its first messages, and one of them may have ended the run.
  if (!ended_) loop_.exec(QEventLoop::DialogExec);
}

void ModalRun::Finish() {
  if (Innermost() != this) return;
  // All code that the window called has returned with the loop.
  TakeApart(window_).reset();
  for (auto& remains : kept_) remains.release()->deleteLater();
  kept_.clear();
  if (dialog_ != nullptr) dialog_->run_ = nullptr;
  Runs().pop_back();
}

void ModalRun::End(int result) {
  ended_ = true;
  result_ = result;
  loop_.exit();
}

void ModalRun::EndWith(std::exception_ptr exception) {
  // The first exception is the cause; a later one comes from the unwinding.
  if (!exception_) exception_ = std::move(exception);
  End(-1);
  const Peer* peer = FindPeer(window_);
  CloseWindowsAbove(peer != nullptr ? peer->widget.data() : nullptr);
}

void ModalRun::DialogDies() { dialog_ = nullptr; }

void ModalRun::Keep(std::unique_ptr<QObject> remains) { kept_.push_back(std::move(remains)); }
