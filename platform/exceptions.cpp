#include "platform/exceptions.h"

BOOL CException::GetErrorMessage(CString*) const { return FALSE; }

BOOL CMemoryException::GetErrorMessage(CString* text) const {
  *text = L"Out of memory.";
  return TRUE;
}

BOOL CResourceException::GetErrorMessage(CString* text) const {
  *text = reason_;
  return TRUE;
}

void AfxThrowUserException() { throw new CUserException; }

void AfxThrowMemoryException() { throw new CMemoryException; }

void AfxThrowResourceException(const CString& reason) { throw new CResourceException(reason); }

std::wstring _com_error::ErrorMessage() const {
  switch (status_) {
    case E_NOTIMPL:
      return L"Not implemented";
    case E_FAIL:
      return L"Unspecified error";
    case E_OUTOFMEMORY:
      return L"Out of memory";
    case E_INVALIDARG:
      return L"Invalid argument";
    default:
      return FormatText(L"Unknown error 0x%08x", {static_cast<long long>(status_)});
  }
}
