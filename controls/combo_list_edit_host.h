#pragma once

#include "platform/text.h"

/// What the edit part of a look-in combo asks its combo. The order of the operations is fixed.
class IComboListEditHost {
 public:
  virtual ~IComboListEditHost() = default;
  /// Lets the user browse for what the text holds. Shows its own failures.
  virtual void Browse() = 0;  // 1
  /// What stands before an entry of the history where it is listed; may be empty.
  virtual CString GetEntryLabel(const CString& entry) = 0;  // 2
  /// How many of the entry's first characters are left out where it is listed.
  virtual int GetEntryOffset(const CString& entry) = 0;  // 3
  /// Brings the combo up to date with its edit part, and yields the text.
  virtual CString GetCurrentText() = 0;  // 4
};
