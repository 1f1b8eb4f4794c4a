#pragma once

// Where error reports go: to the user or to the log.

#include <memory>
#include <string>

#include "foundation/exception.h"

class IDisplayErr {
 public:
  virtual ~IDisplayErr() = default;
  virtual void DisplayError(const ErrorRecord& record, const std::wstring& text,
                            const std::wstring& caption) = 0;
  /// Whether the text is for a person.
  virtual bool IsInteractive() const = 0;
};

/// Logs the error, then shows it in a task-modal message box without owner. A long text is shown
/// shortened and logged whole; an empty caption reads "Error".
class CDisplayMsgBox : public IDisplayErr {
 public:
  /// `lastText`, when given, receives a copy of every text and must outlive the display.
  explicit CDisplayMsgBox(std::wstring* lastText = nullptr) : lastText_(lastText) {}
  void DisplayError(const ErrorRecord& record, const std::wstring& text,
                    const std::wstring& caption) override;
  bool IsInteractive() const override { return true; }

 private:
  std::wstring* lastText_;
};

/// Writes the error to the application's log and shows nothing.
class CDisplayToLog : public IDisplayErr {
 public:
  CDisplayToLog();
  void DisplayError(const ErrorRecord& record, const std::wstring& text,
                    const std::wstring& caption) override;
  bool IsInteractive() const override { return false; }

 private:
  std::shared_ptr<INTERNAL_IFC::ILogMgr> log_;
};

/// Makes the display when a failure has to be reported.
using MakeErrorDisplay = std::shared_ptr<IDisplayErr> (*)();
std::shared_ptr<IDisplayErr> MakeMsgBoxDisplay();
std::shared_ptr<IDisplayErr> MakeLogDisplay();
