#pragma once

// How a long task says how far it is and learns that the user wants it stopped.

#include <cstdint>
#include <functional>
#include <memory>

#include "platform/text.h"

namespace INTERNAL_IFC {

/// Used on the thread of the task, which is that of the user interface.
class IRunningStatus {
 public:
  virtual ~IRunningStatus() = default;
  /// Whether the task should stop. A task asks often; the answer stays true once it is.
  virtual bool IsCancelled() = 0;
};

/// The place of every operation is fixed.
class IWorkProgress {
 public:
  virtual ~IWorkProgress() = default;  // 1
  /// As IRunningStatus::IsCancelled.
  virtual bool IsCancelled() = 0;  // 2
  /// The task is in `step` of `steps`, counted from 1, and has done `done` of `total` units of it;
  /// a total of 0 is not known. `reserved` is 0.
  virtual void ReportProgress(std::int32_t step, std::int32_t steps, std::int32_t done,
                              std::int32_t total, std::int32_t reserved) = 0;  // 3
  /// What the task is doing, as the number of a language text.
  virtual void SetProgressText(std::int32_t text) = 0;  // 4
  /// The progress of a sub-task, which covers this task from where it is to `last` thousandths. It
  /// is cancelled with this task, and by `status` as well unless that is empty; its reports also go
  /// to `listener` unless that is empty. `reserved` is 0. This object must outlive it.
  virtual std::shared_ptr<IWorkProgress> CreateSubProgress(std::int32_t last,
                                                           std::shared_ptr<IRunningStatus> status,
                                                           std::shared_ptr<IWorkProgress> listener,
                                                           std::int32_t reserved) = 0;  // 5
  /// The same for the part between `first` and `last` thousandths. Both reserved numbers are 0.
  virtual std::shared_ptr<IWorkProgress> CreateSubProgressRange(
      std::int32_t first, std::int32_t last, std::int32_t reserved,
      std::shared_ptr<IRunningStatus> status, std::shared_ptr<IWorkProgress> listener,
      std::int32_t reservedToo) = 0;  // 6
};

/// A dialog that shows the progress of a task.
class IWorkProgressDialog {
 public:
  virtual ~IWorkProgressDialog() = default;
  using Work = std::function<long(IWorkProgress*)>;
  /// Runs the work on the calling thread and returns its result; an exception of the work passes.
  /// A dialog with the title is shown meanwhile; `cancellable` gives it a Cancel button.
  virtual long RunWork(const CString& title, bool cancellable, Work work) = 0;
};

}  // namespace INTERNAL_IFC
