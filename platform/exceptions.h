#pragma once

// The framework's exceptions, thrown and caught by pointer and released with Delete, and the
// exception of the component model, thrown and caught by value.

#include <string>

#include "platform/text.h"

class CException {
 public:
  virtual ~CException() = default;
  /// What happened, for a person; FALSE when there is nothing to say.
  virtual BOOL GetErrorMessage(CString* text) const;
  void Delete() { delete this; }
};

/// Raised by CDataExchange::Fail after the user was told; UpdateData swallows it.
class CUserException : public CException {};

class CMemoryException : public CException {
 public:
  BOOL GetErrorMessage(CString* text) const override;
};

/// A resource is missing or damaged.
class CResourceException : public CException {
 public:
  explicit CResourceException(CString reason) : reason_(std::move(reason)) {}
  BOOL GetErrorMessage(CString* text) const override;

 private:
  CString reason_;
};

[[noreturn]] void AfxThrowUserException();
[[noreturn]] void AfxThrowMemoryException();
[[noreturn]] void AfxThrowResourceException(const CString& reason);

class _com_error {
 public:
  explicit _com_error(HRESULT status) : status_(status) {}
  HRESULT Error() const { return status_; }
  std::wstring ErrorMessage() const;

 private:
  HRESULT status_;
};
