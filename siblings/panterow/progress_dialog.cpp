#include "panterow/progress_dialog.h"

#include <algorithm>
#include <utility>

#include "hollerin/hollerin.h"
#include "platform/progress_window.h"
#include "platform/wnd.h"

namespace PANTEROW {
namespace {

using INTERNAL_IFC::IRunningStatus;
using INTERNAL_IFC::IWorkProgress;
using StatusHandle = std::shared_ptr<IRunningStatus>;
using ProgressHandle = std::shared_ptr<IWorkProgress>;

constexpr int kWhole = 1000;

/// A part of the task in thousandths of the whole.
struct Part {
  int first = 0;
  int last = kWhole;

  /// The place that is `thousandths` into the part.
  int At(std::int64_t thousandths) const {
    const std::int64_t inside = std::clamp<std::int64_t>(thousandths, 0, kWhole);
    return first + static_cast<int>((last - first) * inside / kWhole);
  }
};

/// How far a task is whose step and share of the step are given, in thousandths.
std::int64_t Thousandths(std::int64_t step, std::int64_t steps, std::int64_t done,
                         std::int64_t total) {
  if (steps <= 0) return 0;
  const std::int64_t share =
      total > 0 ? std::clamp(done, std::int64_t{0}, total) * kWhole / total : 0;
  return ((step - 1) * kWhole + share) / steps;
}

CString TextOf(std::int32_t number) {
  std::shared_ptr<RES::ILanguageMgr> language;
  HOLLERIN::GetGlobalMgr(&language);
  const auto* text =
      language != nullptr ? language->GetString(static_cast<std::uint32_t>(number)) : nullptr;
  return text != nullptr ? CString(text) : CString();
}

/// The progress of a task, or of a part of it, that is shown in a window.
class CWindowProgress final : public IWorkProgress {
 public:
  explicit CWindowProgress(CProgressWindow& window) : window_(window) {}
  CWindowProgress(CProgressWindow& window, Part part, CWindowProgress* whole, StatusHandle status,
                  ProgressHandle listener)
      : window_(window),
        part_(part),
        whole_(whole),
        status_(std::move(status)),
        listener_(std::move(listener)) {}

  bool IsCancelled() override {
    const bool stopped = whole_ != nullptr ? whole_->IsCancelled() : window_.Poll();
    return stopped || (status_ != nullptr && status_->IsCancelled());
  }

  void ReportProgress(std::int32_t step, std::int32_t steps, std::int32_t done, std::int32_t total,
                      std::int32_t reserved) override {
    position_ = static_cast<int>(
        std::clamp<std::int64_t>(Thousandths(step, steps, done, total), 0, kWhole));
    window_.SetPosition(part_.At(position_));
    window_.Poll();
    if (listener_ != nullptr) listener_->ReportProgress(step, steps, done, total, reserved);
  }

  void SetProgressText(std::int32_t text) override {
    window_.SetText(TextOf(text));
    if (listener_ != nullptr) listener_->SetProgressText(text);
  }

  ProgressHandle CreateSubProgress(std::int32_t last, StatusHandle status, ProgressHandle listener,
                                   std::int32_t) override {
    return Sub(position_, last, std::move(status), std::move(listener));
  }

  ProgressHandle CreateSubProgressRange(std::int32_t first, std::int32_t last, std::int32_t,
                                        StatusHandle status, ProgressHandle listener,
                                        std::int32_t) override {
    return Sub(first, last, std::move(status), std::move(listener));
  }

 private:
  ProgressHandle Sub(int first, int last, StatusHandle status, ProgressHandle listener) {
    const Part part{part_.At(first), part_.At(std::max(first, last))};
    return std::make_shared<CWindowProgress>(window_, part, this, std::move(status),
                                             std::move(listener));
  }

  CProgressWindow& window_;
  Part part_;
  CWindowProgress* whole_ = nullptr;
  StatusHandle status_;
  ProgressHandle listener_;
  int position_ = 0;
};

class CProgressDialog final : public CWindowObject, public INTERNAL_IFC::IWorkProgressDialog {
 public:
  explicit CProgressDialog(CWnd* owner) : owner_(owner) {}

  long RunWork(const CString& title, bool cancellable, Work work) override {
    CProgressWindow window(owner_ != nullptr ? owner_->GetSafeHwnd() : nullptr, title, cancellable);
    CWindowProgress progress(window);
    return work(&progress);
  }

 private:
  CWnd* owner_;
};

}  // namespace

std::unique_ptr<CWindowObject> CreateProgressDialog(CWnd* owner) {
  return std::make_unique<CProgressDialog>(owner);
}

}  // namespace PANTEROW
