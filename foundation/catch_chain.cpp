#include "foundation/catch_chain.h"

#include <exception>
#include <new>

#include "foundation/error_text.h"
#include "platform/exceptions.h"

namespace {

/// What a report says, with the status that the boundary answers.
struct Failure {
  ErrorRecord record;
  const wchar_t* caption = L"";
  HRESULT status = E_FAIL;
};

ErrorRecord MakeRecord(HRESULT status, std::wstring task) {
  return {.status = status,
          .task = std::move(task),
          .systemError = GetLastError(),
          .detail = false,
          .valid = true,
          .line = -1};
}

// An exception that carries a message but no status gets a record that carries none either, so that
// the report reads as that message alone.

Failure FromFramework(CException* exception) {
  CString message;
  if (!exception->GetErrorMessage(&message)) message = L"The user interface reported a failure";
  const bool memory = dynamic_cast<CMemoryException*>(exception) != nullptr;
  exception->Delete();
  return {MakeRecord(S_OK, message.Str()), L"Application - Framework Error",
          memory ? E_OUTOFMEMORY : E_FAIL};
}

Failure FromStandard(const std::exception& exception) {
  const bool memory = dynamic_cast<const std::bad_alloc*>(&exception) != nullptr;
  return {MakeRecord(S_OK, FromUtf8(exception.what())), L"Application - STL Error",
          memory ? E_OUTOFMEMORY : E_FAIL};
}

Failure FromComponent(const _com_error& error) {
  const HRESULT status = FAILED(error.Error()) ? error.Error() : E_FAIL;
  return {MakeRecord(status, L"Component call (" + error.ErrorMessage() + L")"),
          L"Application - COM Error", status};
}

/// The one chain of catch clauses.
Failure CurrentFailure() {
  try {
    throw;
  } catch (const CCP_Exception& exception) {
    const ErrorRecord& record = exception.Record();
    return {record, L"Application Error", FAILED(record.status) ? record.status : E_FAIL};
  } catch (CException* exception) {
    return FromFramework(exception);
  } catch (const std::exception& exception) {
    return FromStandard(exception);
  } catch (const _com_error& error) {
    return FromComponent(error);
  } catch (...) {
    return {MakeRecord(kUnknownFailure, L"Unexpected error"), L"Application - Unexpected Error",
            kUnknownFailure};
  }
}

}  // namespace

HRESULT ReportCurrentException(MakeErrorDisplay makeDisplay, const CString& context,
                               const wchar_t* source) noexcept {
  HRESULT status = E_FAIL;
  try {
    const Failure failure = CurrentFailure();
    status = failure.status;
    const auto display = makeDisplay();
    const std::wstring text =
        BuildErrorText(display->IsInteractive(), context.Str(), source, failure.record);
    display->DisplayError(failure.record, text, failure.caption);
  } catch (...) {
    // A failure inside the error path is not reported again.
  }
  return status;
}
