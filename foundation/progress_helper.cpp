#include "foundation/progress_helper.h"

#include <algorithm>
#include <utility>

CProgressHelper::CProgressHelper(INTERNAL_IFC::IRunningStatus* parent) {
  if (parent != nullptr) AddCheck([parent] { return parent->IsCancelled(); });
}

CProgressHelper::~CProgressHelper() {
  for (auto& check : checks_) check = nullptr;
}

void CProgressHelper::AddCheck(std::function<bool()> check) { checks_.push_back(std::move(check)); }

bool CProgressHelper::IsCancelled() {
  return std::any_of(checks_.begin(), checks_.end(), [](const auto& check) { return check(); });
}

void CProgressHelper::ReportProgress(std::int32_t step, std::int32_t steps, std::int32_t done,
                                     std::int32_t total, std::int32_t reserved) {
  if (target_ != nullptr) target_->ReportProgress(step, steps, done, total, reserved);
}

void CProgressHelper::SetProgressText(std::int32_t text) {
  if (target_ != nullptr) target_->SetProgressText(text);
}

std::shared_ptr<INTERNAL_IFC::IWorkProgress> CProgressHelper::CreateSubProgress(
    std::int32_t last, std::shared_ptr<IRunningStatus> status,
    std::shared_ptr<IWorkProgress> listener, std::int32_t reserved) {
  if (target_ == nullptr) return std::make_shared<CProgressHelper>(this);
  return target_->CreateSubProgress(last, std::move(status), std::move(listener), reserved);
}

std::shared_ptr<INTERNAL_IFC::IWorkProgress> CProgressHelper::CreateSubProgressRange(
    std::int32_t first, std::int32_t last, std::int32_t reserved,
    std::shared_ptr<IRunningStatus> status, std::shared_ptr<IWorkProgress> listener,
    std::int32_t reservedToo) {
  if (target_ == nullptr) return std::make_shared<CProgressHelper>(this);
  return target_->CreateSubProgressRange(first, last, reserved, std::move(status),
                                         std::move(listener), reservedToo);
}
