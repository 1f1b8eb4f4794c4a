#pragma once

// The languages that text in pictures can be recognised in.

#include <memory>
#include <string>
#include <vector>

#include "platform/types.h"

namespace INTERNAL_IFC {

/// The place of every operation is fixed; those that nobody calls are reserved and answer
/// E_NOTIMPL.
class IOCRLanguage {
 public:
  virtual ~IOCRLanguage() = default;  // 0
  /// The recognition engine's own code, such as "eng"; unique.
  virtual std::wstring GetCode() = 0;  // 1
  /// The language's English name.
  virtual std::wstring GetDisplayName() = 0;         // 2
  virtual HRESULT Reserved3() { return E_NOTIMPL; }  // 3
  /// Whether the engine's data for the language are on this machine.
  virtual bool IsAvailable() = 0;  // 4
};

/// The place of every operation is fixed; those that nobody calls are reserved and answer
/// E_NOTIMPL.
class IOCRLangMap {
 public:
  virtual ~IOCRLangMap() = default;  // 0
  /// Replaces `languages` by all that are known, available or not.
  virtual HRESULT GetLanguages(std::vector<std::shared_ptr<IOCRLanguage>>& languages) = 0;  // 1
  /// Fills `language` with the one of that code, or empties it when there is none, which is S_OK
  /// too. Codes are told apart by case.
  virtual HRESULT FindLanguage(std::shared_ptr<IOCRLanguage>& language,
                               const std::wstring& code) = 0;  // 2
};

}  // namespace INTERNAL_IFC
