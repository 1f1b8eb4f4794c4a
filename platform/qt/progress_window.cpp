#include "platform/progress_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QElapsedTimer>
#include <QPointer>
#include <QProgressBar>
#include <QProgressDialog>
#include <algorithm>
#include <climits>

#include "platform/qt/peer.h"

namespace {

constexpr qint64 kShownAfter = 50;    // Milliseconds.
constexpr qint64 kBetweenTurns = 25;  // Milliseconds.
constexpr int kWhole = 1000;
constexpr int kWidthInLetters = 50;

/// Every way out of the window is its Cancel.
class ProgressDialog final : public QProgressDialog {
 public:
  ProgressDialog(QWidget* parent, const QString& title, bool cancellable)
      : QProgressDialog(parent), cancellable_(cancellable) {
    setWindowModality(Qt::ApplicationModal);
    setWindowTitle(title);
    setLabelText(title);
    auto* bar = new QProgressBar;
    bar->setRange(0, kWhole);
    bar->setAccessibleName(title);
    setBar(bar);
    // Only the task's end and Cancel close it, and nothing but Show opens it.
    setAutoClose(false);
    setAutoReset(false);
    setMinimumDuration(INT_MAX);
    reset();
    if (!cancellable) setCancelButton(nullptr);
    setMinimumWidth(kWidthInLetters * fontMetrics().averageCharWidth());
  }

  void reject() override {
    if (cancellable_) cancel();
  }

 protected:
  void closeEvent(QCloseEvent* event) override {
    if (cancellable_) return QProgressDialog::closeEvent(event);
    event->ignore();
  }

 private:
  bool cancellable_;
};

QWidget* OwnerWidget(HWND owner) {
  const Peer* peer = FindPeer(owner);
  if (peer == nullptr) peer = FindPeer(GetActiveWindow());
  return peer != nullptr && peer->widget != nullptr ? peer->widget->window() : nullptr;
}

}  // namespace

struct CProgressWindow::Implementation {
  Implementation(HWND owner, const QString& title, bool cancellable)
      : dialog(new ProgressDialog(OwnerWidget(owner), title, cancellable)),
        bar(dialog->findChild<QProgressBar*>()) {
    sinceStart.start();
  }
  ~Implementation() { delete dialog; }

  bool Due() const {
    return shown ? sinceTurn.elapsed() >= kBetweenTurns : sinceStart.elapsed() >= kShownAfter;
  }

  void Turn() {
    if (!shown) dialog->show();
    shown = true;
    bar->setValue(position);
    QApplication::processEvents();
    // It has gone with its owner, or somebody else has closed it: the task has lost its window.
    cancelled = dialog == nullptr || dialog->wasCanceled() || !dialog->isVisible();
    sinceTurn.start();
  }

  QPointer<ProgressDialog> dialog;
  QProgressBar* bar;
  QElapsedTimer sinceStart;
  QElapsedTimer sinceTurn;
  int position = 0;
  bool shown = false;
  bool turning = false;
  bool cancelled = false;
};

CProgressWindow::CProgressWindow(HWND owner, const CString& title, bool cancellable)
    : implementation_(std::make_unique<Implementation>(owner, ToQt(title.Str()), cancellable)) {}

CProgressWindow::~CProgressWindow() = default;

void CProgressWindow::SetText(const CString& text) {
  if (implementation_->dialog != nullptr) implementation_->dialog->setLabelText(ToQt(text.Str()));
}

void CProgressWindow::SetPosition(int thousandths) {
  implementation_->position = std::clamp(thousandths, 0, kWhole);
}

bool CProgressWindow::Poll() {
  Implementation& window = *implementation_;
  // An event that is handled in here may poll again.
  if (window.cancelled || window.turning || !window.Due()) return window.cancelled;
  window.turning = true;
  window.Turn();
  window.turning = false;
  return window.cancelled;
}
