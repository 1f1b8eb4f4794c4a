#include "foundation/error_display.h"

#include "foundation/error_text.h"
#include "foundation/globals.h"
#include "platform/message_box.h"
#include "platform/messages.h"

namespace {

/// A log that fails must not keep the report from the user, and has nowhere to be reported itself.
void LogQuietly(const std::shared_ptr<INTERNAL_IFC::ILogMgr>& log, const ErrorRecord& record,
                const std::wstring& text) {
  if (log == nullptr) return;
  try {
    log->LogError(record, text);
  } catch (...) {
  }
}

}  // namespace

void CDisplayMsgBox::DisplayError(const ErrorRecord& record, const std::wstring& text,
                                  const std::wstring& caption) {
  LogQuietly(ApplicationLog(), record, text);
  if (lastText_ != nullptr) *lastText_ = text;
  MessageBoxW(nullptr, ShortenForDisplay(text), caption.empty() ? L"Error" : caption, MB_TASKMODAL);
}

CDisplayToLog::CDisplayToLog() : log_(ApplicationLog()) {}

void CDisplayToLog::DisplayError(const ErrorRecord& record, const std::wstring& text,
                                 const std::wstring& /*caption*/) {
  LogQuietly(log_, record, text);
}

std::shared_ptr<IDisplayErr> MakeMsgBoxDisplay() { return std::make_shared<CDisplayMsgBox>(); }
std::shared_ptr<IDisplayErr> MakeLogDisplay() { return std::make_shared<CDisplayToLog>(); }
