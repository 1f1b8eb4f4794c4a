#pragma once

// The configuration store, as every library of the application sees it.

#include <cstdint>
#include <string>

#include "platform/types.h"

namespace INTERNAL_IFC {

/// Typed values addressed by (section, key). A value is written and read as a boolean, a 32-bit
/// integer or a text; a read names its default and never fails for a missing value. Writes take
/// effect in the object at once and reach the disk with Save. Used on the user-interface thread.
///
/// The place of every operation is fixed, because stores are made by another library; operations
/// that nobody calls are reserved and answer E_NOTIMPL.
class IConfigDataMgr {
 public:
  virtual ~IConfigDataMgr() = default;               // 0
  virtual HRESULT Reserved1() { return E_NOTIMPL; }  // 1
  virtual HRESULT Reserved2() { return E_NOTIMPL; }  // 2
  virtual HRESULT Reserved3() { return E_NOTIMPL; }  // 3
  /// Lays the values of a file over those of the store. E_FAIL when there is no such file or it
  /// cannot be read; the store is unchanged then.
  virtual HRESULT LoadFile(const std::wstring& folder, const std::wstring& name) = 0;  // 4
  virtual HRESULT Reserved5() { return E_NOTIMPL; }                                    // 5
  virtual HRESULT Reserved6() { return E_NOTIMPL; }                                    // 6
  /// Writes the store to the file it belongs to. S_FALSE when the file holds these values already;
  /// negative when it has no file or writing failed, and then the old file is whole.
  virtual HRESULT Save() = 0;                                  // 7
  virtual HRESULT Reserved8() { return E_NOTIMPL; }            // 8
  virtual HRESULT Reserved9() { return E_NOTIMPL; }            // 9
  virtual HRESULT Reserved10() { return E_NOTIMPL; }           // 10
  virtual HRESULT Reserved11() { return E_NOTIMPL; }           // 11
  virtual HRESULT Reserved12() { return E_NOTIMPL; }           // 12
  virtual void Clear() = 0;                                    // 13
  virtual void ClearSection(const std::wstring& section) = 0;  // 14
  virtual HRESULT Reserved15() { return E_NOTIMPL; }           // 15
  /// The whole store as an opaque text for LoadFromText.
  virtual void SaveToText(std::wstring& text) = 0;       // 16
  virtual void SaveToNarrowText(std::string& text) = 0;  // 17
  virtual HRESULT Reserved18() { return E_NOTIMPL; }     // 18
  /// Replaces all values by those of the text. A damaged text changes nothing.
  virtual void LoadFromNarrowText(const std::string& text) = 0;  // 19
  virtual void LoadFromText(const std::wstring& text) = 0;       // 20
  virtual HRESULT Reserved21() { return E_NOTIMPL; }             // 21
  virtual HRESULT Reserved22() { return E_NOTIMPL; }             // 22
  virtual HRESULT Reserved23() { return E_NOTIMPL; }             // 23
  virtual HRESULT Reserved24() { return E_NOTIMPL; }             // 24
  virtual HRESULT Reserved25() { return E_NOTIMPL; }             // 25
  virtual HRESULT Reserved26() { return E_NOTIMPL; }             // 26
  virtual HRESULT Reserved27() { return E_NOTIMPL; }             // 27
  virtual HRESULT Reserved28() { return E_NOTIMPL; }             // 28
  virtual HRESULT Reserved29() { return E_NOTIMPL; }             // 29
  virtual bool ReadBool(const std::wstring& section, const std::wstring& key,
                        bool defaultValue) = 0;  // 30
  virtual std::int32_t ReadInt(const std::wstring& section, const std::wstring& key,
                               std::int32_t defaultValue) = 0;  // 31
  virtual HRESULT Reserved32() { return E_NOTIMPL; }            // 32
  virtual HRESULT Reserved33() { return E_NOTIMPL; }            // 33
  virtual std::wstring ReadString(const std::wstring& section, const std::wstring& key,
                                  const std::wstring& defaultValue) = 0;  // 34
  virtual HRESULT Reserved35() { return E_NOTIMPL; }                      // 35
  virtual HRESULT Reserved36() { return E_NOTIMPL; }                      // 36
  virtual HRESULT Reserved37() { return E_NOTIMPL; }                      // 37
  virtual void WriteBool(const std::wstring& section, const std::wstring& key,
                         bool value) = 0;  // 38
  virtual void WriteInt(const std::wstring& section, const std::wstring& key,
                        std::int32_t value) = 0;      // 39
  virtual HRESULT Reserved40() { return E_NOTIMPL; }  // 40
  virtual HRESULT Reserved41() { return E_NOTIMPL; }  // 41
  virtual void WriteString(const std::wstring& section, const std::wstring& key,
                           const std::wstring& value) = 0;  // 42
};

}  // namespace INTERNAL_IFC
