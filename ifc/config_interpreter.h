#pragma once

// One interpreter: what turns the files of one format into text that can be searched.

#include <string>

#include "platform/types.h"

namespace INTERNAL_IFC {

/// A setter changes this object only; the store is changed when the list it belongs to is saved.
/// Used on the user-interface thread.
///
/// The place of every operation is fixed; those that nobody calls are reserved and answer
/// E_NOTIMPL.
class IConfigInterpreter {
 public:
  virtual ~IConfigInterpreter() = default;  // 0
  /// For people; not translated, not necessarily unique.
  virtual std::wstring GetName() = 0;  // 1
  /// Unique in its list and never changed: tells the entry from the others in every load.
  virtual std::wstring GetKey() = 0;  // 2
  /// File extensions separated by ",".
  virtual std::wstring GetExtensions() = 0;          // 3
  virtual HRESULT Reserved4() { return E_NOTIMPL; }  // 4
  /// What the interpreter is good for, in a sentence; may be empty.
  virtual std::wstring GetInfoText() = 0;  // 5
  /// Words that say what kind of interpreter this is, such as "textconverter", separated by blanks.
  /// Users look for a word as a part of the text, exact in case.
  virtual std::wstring GetType() = 0;                // 6
  virtual HRESULT Reserved7() { return E_NOTIMPL; }  // 7
  virtual HRESULT Reserved8() { return E_NOTIMPL; }  // 8
  virtual HRESULT Reserved9() { return E_NOTIMPL; }  // 9
  /// Whether searches use the interpreter.
  virtual bool IsEnabled() = 0;  // 10
  /// Whether files of these extensions are also searched as they are stored.
  virtual bool GetOptionA() = 0;  // 11
  /// Whether the format counts as a document, not as an archive.
  virtual bool IsDocumentFormat() = 0;                // 12
  virtual HRESULT Reserved13() { return E_NOTIMPL; }  // 13
  /// Whether a file is taken for this format by its extension alone, its first bytes unseen.
  virtual bool GetOptionC() = 0;                      // 14
  virtual HRESULT Reserved15() { return E_NOTIMPL; }  // 15
  virtual HRESULT Reserved16() { return E_NOTIMPL; }  // 16
  virtual HRESULT Reserved17() { return E_NOTIMPL; }  // 17
  virtual HRESULT Reserved18() { return E_NOTIMPL; }  // 18
  virtual HRESULT Reserved19() { return E_NOTIMPL; }  // 19
  /// Takes any text, as it stands.
  virtual void SetExtensions(const std::wstring& extensions) = 0;  // 20
  virtual HRESULT Reserved21() { return E_NOTIMPL; }               // 21
  virtual HRESULT Reserved22() { return E_NOTIMPL; }               // 22
  virtual HRESULT Reserved23() { return E_NOTIMPL; }               // 23
  virtual HRESULT Reserved24() { return E_NOTIMPL; }               // 24
  virtual HRESULT Reserved25() { return E_NOTIMPL; }               // 25
  virtual HRESULT Reserved26() { return E_NOTIMPL; }               // 26
  virtual void SetEnabled(bool enabled) = 0;                       // 27
  virtual HRESULT Reserved28() { return E_NOTIMPL; }               // 28
  virtual void SetOptionA(bool option) = 0;                        // 29
  virtual void SetDocumentFormat(bool document) = 0;               // 30
  virtual HRESULT Reserved31() { return E_NOTIMPL; }               // 31
  virtual void SetOptionC(bool option) = 0;                        // 32
};

}  // namespace INTERNAL_IFC
