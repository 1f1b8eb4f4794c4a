#pragma once

// Progress of work that has no window of its own.

#include <functional>
#include <vector>

#include "ifc/work_progress.h"

/// Passes reports on to a target, where there is one, and is cancelled as soon as any of its checks
/// says so. Its sub-tasks are cancelled with it. Held by a shared pointer. Neither the checks nor
/// the target may change while a task uses it.
class CProgressHelper : public INTERNAL_IFC::IWorkProgress, public INTERNAL_IFC::IRunningStatus {
 public:
  /// With a parent the helper is cancelled whenever the parent is; the parent must outlive it.
  explicit CProgressHelper(INTERNAL_IFC::IRunningStatus* parent = nullptr);
  /// The checks go in the order in which they came.
  ~CProgressHelper() override;
  CProgressHelper(const CProgressHelper&) = delete;
  CProgressHelper& operator=(const CProgressHelper&) = delete;

  /// Checks are asked in the order in which they came, up to the first that is true.
  void AddCheck(std::function<bool()> check);
  /// Not owned; null takes it away.
  void SetTarget(INTERNAL_IFC::IWorkProgress* target) { target_ = target; }

  bool IsCancelled() override;
  void ReportProgress(std::int32_t step, std::int32_t steps, std::int32_t done, std::int32_t total,
                      std::int32_t reserved) override;
  void SetProgressText(std::int32_t text) override;
  /// The target's sub-task; without a target a helper that has this one as its parent.
  std::shared_ptr<IWorkProgress> CreateSubProgress(std::int32_t last,
                                                   std::shared_ptr<IRunningStatus> status,
                                                   std::shared_ptr<IWorkProgress> listener,
                                                   std::int32_t reserved) override;
  std::shared_ptr<IWorkProgress> CreateSubProgressRange(std::int32_t first, std::int32_t last,
                                                        std::int32_t reserved,
                                                        std::shared_ptr<IRunningStatus> status,
                                                        std::shared_ptr<IWorkProgress> listener,
                                                        std::int32_t reservedToo) override;

 private:
  std::vector<std::function<bool()>> checks_;
  INTERNAL_IFC::IWorkProgress* target_ = nullptr;
};
